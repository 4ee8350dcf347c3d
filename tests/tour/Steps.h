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

/// Prints with an option, from 0, to a PDF file in the tour's folder.
void print(User& user, const kaart::Design& design, int option, const QString& file);
