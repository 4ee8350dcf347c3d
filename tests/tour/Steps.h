#pragma once

#include "design/session/Design.h"
#include "tests/tour/User.h"

// Steps that several chapters take.

/// Sets one of the two colours by its three sliders, "HScroll1" or "VulScroll".
void pickColour(User& user, const char* sliders, kaart::ColorRef colour);

/// Types a path into the file window in front and closes it, after a picture where one is named.
void pickFile(User& user, const QString& path, const QString& picture = {});

/// A file in the tour's folder.
QString tourFile(const kaart::Design& design, const QString& file);

/// Chooses an entry of a menu that opens a window, and acts in it.
void inWindow(User& user, const char* menu, const char* entry, const std::function<void()>& inside);

// A row of List1 in the window in front, by its text.
void pickRow(User& user, const QString& text);
void doubleClickRow(User& user, const QString& text);

/// Carries the floating picture to a place on the card and puts it down by an entry Plak(index).
void putDown(User& user, const kaart::Design& design, QPoint at, int index);

/// Prints with an option, from 0, to a PDF file in the tour's folder.
void print(User& user, const kaart::Design& design, int option, const QString& file);
