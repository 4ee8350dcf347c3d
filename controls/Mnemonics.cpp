#include "controls/Mnemonics.h"

#include "controls/VistaButton.h"

#include <QAction>
#include <QMap>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <array>

namespace kaart {

namespace {

constexpr std::size_t ranks = 3;

bool isTypable(QChar letter) {
    return letter.unicode() < 0x80 && letter.isLetterOrNumber();
}

bool startsWord(const QString& caption, qsizetype at) {
    return at == 0 || !caption[at - 1].isLetterOrNumber();
}

/// The letters of a caption by rank: its first one, those of its other words, the rest.
std::array<QString, ranks> candidates(const QString& caption) {
    std::array<QString, ranks> found;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (isTypable(caption[at])) {
            const bool first = found[0].isEmpty() && found[2].isEmpty();
            const std::size_t rank = !startsWord(caption, at) ? 2 : first ? 0 : 1;
            found.at(rank) += caption[at].toUpper();
        }
    }
    return found;
}

/// Which caption has which letter.
class Matching {
public:
    explicit Matching(const QString& taken) : taken_(taken.toUpper()) {}

    QChar letterOf(const QString& caption) const { return owners_.key(caption); }

    /// Takes the first letter of that rank that nobody has, unless the caption has one.
    void takeFree(const QString& caption, std::size_t rank) {
        const QString wanted = candidates(caption).at(rank);
        const auto free = std::ranges::find_if(wanted, [this](QChar letter) {
            return !taken_.contains(letter) && !owners_.contains(letter);
        });
        if (free != wanted.end() && letterOf(caption).isNull()) {
            owners_[*free] = caption;
        }
    }

    /// Takes a letter, of a caption that can do with another one if need be (augmenting paths: H.
    /// W. Kuhn, 1955). `tried` are letters that were asked for already.
    bool takeAny(const QString& caption, QString& tried) {
        for (const QString& rank : candidates(caption)) {
            for (const QChar letter : rank) {
                if (taken_.contains(letter) || tried.contains(letter)) {
                    continue;
                }
                tried += letter;
                if (!owners_.contains(letter) || takeAny(QString(owners_[letter]), tried)) {
                    owners_[letter] = caption;
                    return true;
                }
            }
        }
        return false;
    }

private:
    QString taken_;
    QMap<QChar, QString> owners_;
};

QString plainCaption(const QAction& entry) {
    return entry.text().remove(QLatin1Char('&'));
}

/// The letters of a menu's entries, in one word.
QString letterMenu(const QWidget& menu) {
    QList<QAction*> entries = menu.actions();
    entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
    QStringList captions;
    std::ranges::transform(entries, std::back_inserter(captions),
                           [](const QAction* entry) { return plainCaption(*entry); });
    const QList<QChar> letters = mnemonicsFor(captions);
    QString given;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        entries[i]->setText(withMnemonic(captions[i], letters[i]));
        given += letters[i];
    }
    return given;
}

void letterButtons(const QWidget& window, const QString& taken) {
    QList<VistaButton*> buttons = window.findChildren<VistaButton*>();
    buttons.removeIf([](const VistaButton* button) { return button->text().isEmpty(); });
    QStringList captions;
    std::ranges::transform(buttons, std::back_inserter(captions),
                           [](const VistaButton* button) { return button->text(); });
    const QList<QChar> letters = mnemonicsFor(captions, taken);
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        buttons[i]->setShortcut(
            letters[i].isNull()
                ? QKeySequence()
                : QKeySequence(Qt::ALT | static_cast<Qt::Key>(letters[i].unicode())));
    }
}

} // namespace

QList<QChar> mnemonicsFor(const QStringList& captions, const QString& taken) {
    Matching matching(taken);
    for (std::size_t rank = 0; rank < ranks; ++rank) {
        for (const QString& caption : captions) {
            matching.takeFree(caption, rank);
        }
    }
    for (const QString& caption : captions) {
        QString tried;
        if (matching.letterOf(caption).isNull()) {
            matching.takeAny(caption, tried);
        }
    }
    QList<QChar> letters;
    for (const QString& caption : captions) {
        letters << matching.letterOf(caption);
    }
    return letters;
}

QString withMnemonic(const QString& caption, QChar letter) {
    qsizetype found = -1;
    for (qsizetype at = caption.size() - 1; at >= 0 && !letter.isNull(); --at) {
        const bool better = found < 0 || startsWord(caption, at) || !startsWord(caption, found);
        if (caption[at].toUpper() == letter && better) {
            found = at;
        }
    }
    return found < 0 ? caption : QString(caption).insert(found, QLatin1Char('&'));
}

void giveMnemonics(QWidget& widget) {
    if (qobject_cast<QMenu*>(&widget) != nullptr || qobject_cast<QMenuBar*>(&widget) != nullptr) {
        letterMenu(widget);
        return;
    }
    const QWidget& window = *widget.window();
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        letterMenu(*menu);
    }
    QString taken;
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        taken += letterMenu(*bar);
    }
    letterButtons(window, taken);
}

} // namespace kaart
