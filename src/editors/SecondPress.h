// Makes a double click on a button one click: what the first press does may put something else under the mouse, which
// the second press is not for.
#pragma once

// To be called in the press of a left button. When a double click follows, its second press reaches no widget, whatever
// is under the mouse by then.
void swallowSecondPress();
