// The device's keys that a PC's keyboard lacks: F1 and F2 are the left and the right soft key, the
// first and the second text of the active window's menu bar; Ctrl+Enter is the OK key, a tap on the
// navigation bar's "ok". They work while the thread has a menu bar.
#pragma once

// Every menu bar is a user of the keys from its creation to its end.
void AddSoftKeyUser();
void RemoveSoftKeyUser();
