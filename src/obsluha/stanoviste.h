// obsluha/stanoviste.h - the operator's posts: automatic through running (AH) and the post's menu.
#pragma once

// --- on the operator's command

// AH on a post (station code): the through routes of the station repeat themselves. With all of them in
// automatic mode already, the mode goes off and their routes are cancelled. Nothing at a station that
// has no such routes.
void automat(int post);
// Opens the menu of the post.
void menu_stanoviste(int post);
// POPISKY: all names of stations on the relief on or off.
void prepni_popisky();
