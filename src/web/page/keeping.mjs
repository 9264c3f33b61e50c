// Safari deletes what a page has kept when it was not visited for seven days, unless it is on the home
// screen. It goes by the maker, for every browser of a phone of theirs is Safari within.
export function isForAWeek({ vendor, standalone }) {
  return vendor === 'Apple Computer, Inc.' && standalone !== true;
}
