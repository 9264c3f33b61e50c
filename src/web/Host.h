#pragma once

#include <cstdint>

// What the page does for the game, in host.mjs. The linker finds these functions in imports.js.
// Texts are UTF-8 and end with a zero; whoever gets one copies it.
extern "C" {

double veyrand_host_now(); // milliseconds, never backwards
void veyrand_host_call_after(double milliseconds); // then veyrand_call_due; the last wish counts
void veyrand_host_call_frame(); // then veyrand_frame, before the next picture
std::uint32_t veyrand_host_random();
double veyrand_host_today(); // whole days from 1 January 1970 to the player's date
double veyrand_host_text_width(const char* text); // of one line, in ems
double veyrand_host_line_height(); // in ems

void veyrand_host_paint(const double* items, int itemCount, const double* damage, int damageCount);
void veyrand_host_name(int number, const char* text); // what the number stands for in items
void veyrand_host_cursor(const char* name);

void veyrand_host_play(const char* sound);
void veyrand_host_start_loop(const char* sound, double volume);
void veyrand_host_loop_volume(double volume);
void veyrand_host_stop_loop();
void veyrand_host_volume(int isMusic, int percent);

void veyrand_host_copy(const char* text); // to where other programs find it
void veyrand_host_paste(); // then veyrand_pasted, if the player lets the page have it

void veyrand_host_store(const char* name, const char* text); // null: nothing under the name
void veyrand_host_full_screen(int on);
void veyrand_host_alert(const char* json); // then veyrand_answer
void veyrand_host_menu(const char* item); // what a menu item leaves to the page
// A file for the player, and one of his, of so many bytes at most: then veyrand_file_chosen.
void veyrand_host_save_file(const char* name, const char* text);
void veyrand_host_open_file(double mostBytes);
void veyrand_host_tree(const char* json); // what a screen reader finds: see WebReader
void veyrand_host_announce(const char* sentence); // to whoever does not see the board
void veyrand_host_quit();
void veyrand_host_report(const char* words); // for the player
void veyrand_host_damaged(const char* name); // the preferences, which are kept under the name
void veyrand_host_language(const char* code); // that the game speaks now
void veyrand_host_log(const char* line);
void veyrand_host_give_up(const char* words); // nothing more is trusted
}
