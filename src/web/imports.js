// The functions of Host.h for the linker: each hands on to the page's object of the same name.
// There is no backslash in this file, for the linker would stumble over it.

mergeInto(LibraryManager.library, {
  veyrand_host_now: function () { return Module['host'].now(); },
  veyrand_host_call_after: function (milliseconds) { Module['host'].callAfter(milliseconds); },
  veyrand_host_call_frame: function () { Module['host'].callFrame(); },
  veyrand_host_random: function () { return Module['host'].random(); },
  veyrand_host_today: function () { return Module['host'].today(); },
  veyrand_host_text_width: function (text) { return Module['host'].textWidth(UTF8ToString(text)); },
  veyrand_host_line_height: function () { return Module['host'].lineHeight(); },
  veyrand_host_paint: function (items, itemCount, damage, damageCount) {
    Module['host'].paint(HEAPF64, items >> 3, itemCount, damage >> 3, damageCount);
  },
  veyrand_host_name: function (number, text) { Module['host'].name(number, UTF8ToString(text)); },
  veyrand_host_cursor: function (name) { Module['host'].cursor(UTF8ToString(name)); },
  veyrand_host_play: function (sound) { Module['host'].play(UTF8ToString(sound)); },
  veyrand_host_start_loop: function (sound, volume) {
    Module['host'].startLoop(UTF8ToString(sound), volume);
  },
  veyrand_host_loop_volume: function (volume) { Module['host'].loopVolume(volume); },
  veyrand_host_stop_loop: function () { Module['host'].stopLoop(); },
  veyrand_host_volume: function (isMusic, percent) { Module['host'].volume(isMusic, percent); },
  veyrand_host_copy: function (text) { Module['host'].copy(UTF8ToString(text)); },
  veyrand_host_paste: function () { Module['host'].paste(); },
  veyrand_host_store: function (name, text) {
    Module['host'].store(UTF8ToString(name), text === 0 ? null : UTF8ToString(text));
  },
  veyrand_host_full_screen: function (on) { Module['host'].fullScreen(on !== 0); },
  veyrand_host_alert: function (json) { Module['host'].alert(UTF8ToString(json)); },
  veyrand_host_menu: function (item) { Module['host'].menu(UTF8ToString(item)); },
  veyrand_host_save_file: function (name, text) {
    Module['host'].saveFile(UTF8ToString(name), UTF8ToString(text));
  },
  veyrand_host_open_file: function (mostBytes) { Module['host'].openFile(mostBytes); },
  veyrand_host_tree: function (json) { Module['host'].tree(UTF8ToString(json)); },
  veyrand_host_announce: function (sentence) { Module['host'].announce(UTF8ToString(sentence)); },
  veyrand_host_quit: function () { Module['host'].quit(); },
  veyrand_host_report: function (words) { Module['host'].report(UTF8ToString(words)); },
  veyrand_host_damaged: function (name) { Module['host'].damaged(UTF8ToString(name)); },
  veyrand_host_give_up: function (words) { Module['host'].giveUp(UTF8ToString(words)); },
  veyrand_host_language: function (code) { Module['host'].language(UTF8ToString(code)); },
  veyrand_host_log: function (line) { Module['host'].log(UTF8ToString(line)); },
});
