#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace kaart {

/// An address is eight texts in this order: name, street and number, postal code, town, telephone,
/// e-mail, country, remark.
inline constexpr int addressFields = 8;
using Addresses = QList<QStringList>;

/// The names of the fields as columns of a list.
QStringList addressHeaders();

/// Data/Adressen.col, a record file. A last address that the file breaks off in comes with empty
/// fields; a file that cannot be read has no addresses.
Addresses readAddresses(const QString& path);
bool writeAddresses(const QString& path, const Addresses& addresses);

/// How many of the first fields must be filled in.
inline constexpr int requiredForAdding = 4;
inline constexpr int requiredForChanging = 1;

struct MissingField {
    int field; ///< from 0
    QString message;
};

/// The first required field that is empty or of blanks only; nothing when all are there.
std::optional<MissingField> missingField(const QStringList& address, int required);

/// The address with "-" for each blank field that isn't required.
QStringList withDashes(QStringList address, int required);

} // namespace kaart
