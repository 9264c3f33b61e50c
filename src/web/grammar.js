// How languages count, as the browser and node know it. There is no backslash in this file, for the
// linker would stumble over it.

mergeInto(LibraryManager.library, {
  veyrand_form_of: function (code, number) {
    return ['zero', 'one', 'two', 'few', 'many', 'other'].indexOf(
      new Intl.PluralRules(UTF8ToString(code)).select(number));
  },
  veyrand_write_number: function (code, number, text, size) {
    stringToUTF8(new Intl.NumberFormat(UTF8ToString(code), { useGrouping: false }).format(number), text, size);
  },
});
