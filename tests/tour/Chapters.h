#pragma once

#include "design/session/Design.h"
#include "tests/tour/User.h"

#include <span>

/// One part of the tour; each begins where the one before it ended.
struct Chapter {
    const char* name;
    void (*play)(User& user, kaart::Design& design);
};

// In the order in which they are played.
std::span<const Chapter> cardChapters();
std::span<const Chapter> filterChapters();
std::span<const Chapter> paperChapters();
std::span<const Chapter> artChapters();
std::span<const Chapter> finishedCards();
std::span<const Chapter> puzzleChapters();
std::span<const Chapter> pictureChapters();
std::span<const Chapter> lastChapters();
