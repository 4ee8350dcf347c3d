#include "addresses/AddressList.h"

#include "design/surface/RecordFile.h"

namespace kaart {

namespace {

bool isBlank(const QString& field) {
    return trimBlanks(field).isEmpty();
}

} // namespace

QStringList addressHeaders() {
    return {QStringLiteral("Naam"),       QStringLiteral("Adres"),    QStringLiteral("Postcode"),
            QStringLiteral("Woonplaats"), QStringLiteral("Telefoon"), QStringLiteral("Email"),
            QStringLiteral("Land"),       QStringLiteral("Opmerking")};
}

Addresses readAddresses(const QString& path) {
    return readRecords(path, addressFields, TornRecord::Kept);
}

bool writeAddresses(const QString& path, const Addresses& addresses) {
    return writeRecords(path, addresses);
}

std::optional<MissingField> missingField(const QStringList& address, int required) {
    static const QString messages[requiredForAdding] = {
        QStringLiteral("Voor en Achternaam invullen a.u.b."),
        QStringLiteral("Adres invullen a.u.b."), QStringLiteral("Postcode invullen a.u.b."),
        QStringLiteral("Plaatsnaam invullen a.u.b.")};
    for (int field = 0; field < required; ++field) {
        if (isBlank(address[field])) {
            return MissingField{field, messages[field]};
        }
    }
    return std::nullopt;
}

QStringList withDashes(QStringList address, int required) {
    for (qsizetype field = required; field < address.size(); ++field) {
        if (isBlank(address[field])) {
            address[field] = QStringLiteral("-");
        }
    }
    return address;
}

} // namespace kaart
