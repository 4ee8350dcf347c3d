#pragma once

#include "tests/tour/Steps.h"

/// How a text on a card looks.
struct Lettering {
    const char* font = "Liberation Serif";
    const char* size = "16"; ///< points, as the list of sizes has it
    kaart::ColorRef colour = 0;
    bool bold = false;
    bool italic = false;
    bool shadow = false; ///< for headings only
};

/// Lays down a whole card from what lies in the box, with mouse and keys as anybody does.
class CardMaker {
public:
    /// Begins a card with a picture; what lay there is dropped.
    CardMaker(User& user, kaart::Design& design, int kind, const QString& file);

    /// Frame (1), template (2), background (3) or mask (4), by its file.
    void picture(int kind, const QString& file);
    /// Sticker 0 to 4 of a sheet, so many pixels wide, its left top at a point of the card.
    void sticker(const QString& sheet, int cell, int width, QPoint at);
    /// A part of what the window shows of a line drawing, scrolled so far to the right, put down
    /// transparently.
    void drawing(const QString& name, int scroll, const QRect& part, QPoint at);
    /// One line; its middle and top are at a point of the card.
    void heading(const QString& text, const Lettering& lettering, QPoint middleTop);
    /// A text of the library, its lines centred.
    void poem(const QString& name, const Lettering& lettering, QPoint middleTop);
    /// A frame of rings, from 1, around the card.
    void rings(int number);
    /// Saves the card under a name and prints it to kaarten/<name>.pdf, by an option from 0.
    void finish(const QString& name, int option);

private:
    void setCheck(const char* name, bool on);
    void take(const Lettering& lettering);

    User& user_;
    kaart::Design& design_;
};
