// What contracts.cpp asks of its page.

mergeInto(LibraryManager.library, {
  contracts_timer: function () { return Module['host'].timer(); },
  contracts_empty_store: function () { Module['host'].texts.clear(); },
  contracts_load: function (store) { Module['host'].load(Module, store); },
  contracts_begin_sounds: function () { Module['host'].beginSounds(); },
  contracts_is_heard: function () { return Module['host'].isHeard() ? 1 : 0; },
});
