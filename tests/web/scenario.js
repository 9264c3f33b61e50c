// What scenario.cpp asks of its page.

mergeInto(LibraryManager.library, {
  scenario_picture: function (name) { Module['host'].picture(UTF8ToString(name)); },
});
