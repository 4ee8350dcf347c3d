#pragma once

#include <QStringList>

class QWidget;

namespace kaart {

/// A letter for each caption, upper case, in their order: the first letter of the caption if no
/// other one has it, else that of a later word, else any letter or digit; another caption makes
/// room where one would go without; none, QChar(), where all are gone. Captions that are alike have
/// the same one. Letters of `taken` are left out, and so is whatever a keyboard may lack (accents).
QList<QChar> mnemonicsFor(const QStringList& captions, const QString& taken = {});

/// A caption with "&" before its letter, at the start of a word if it stands there; as it is
/// without a letter.
QString withMnemonic(const QString& caption, QChar letter);

/// Of a menu or menu bar: gives each entry its letter, as "&" in its text. Of any other widget:
/// does so for all menu bars, menus and pop-ups of its window, and gives each VistaButton with a
/// caption the shortcut Alt and a letter that the bar leaves; its text stays as it is. To be called
/// again when captions have changed.
void giveMnemonics(QWidget& widget);

} // namespace kaart
