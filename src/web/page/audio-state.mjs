// What to do with the browser's audio, whatever has happened to it: a call or a lock may interrupt
// it, and it may start only when the player has touched the page.
//
//   state      what the audio says of itself: 'running', 'suspended', 'interrupted', 'closed'
//   isVisible  whether the page can be seen
//   isTouched  whether the player has pressed anything yet
//   isNeeded   whether something sounds, or may at any moment
//
// Answers 'resume', 'suspend', 'renew' (the audio is beyond help) or 'nothing'.
export function audioStep({ state, isVisible, isTouched, isNeeded }) {
  if (!isTouched) {
    return 'nothing';
  }
  if (state === 'closed') {
    return isNeeded && isVisible ? 'renew' : 'nothing';
  }
  if (isVisible && isNeeded) {
    return state === 'running' ? 'nothing' : 'resume';
  }
  return state === 'running' ? 'suspend' : 'nothing';
}
