#include "packs/CodeModule.h"

#include "packs/Unpacker.h"

namespace kaart {

namespace {

QString listingLine(const QString& name, const QString& size, const QString& date,
                    const QString& time) {
    return QStringLiteral("%1%2  %3  %4\n")
        .arg(name.leftJustified(40), size.rightJustified(12), date.leftJustified(8), time);
}

} // namespace

qint32 CodeModule::unzip(const UnzipSettings& settings, const UnzipLimits& limits) {
    message_.clear();
    listing_ = false;
    return Unpacker(settings, limits, *this).run();
}

void CodeModule::print(const QString& text) {
    message_ += QString(text).replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}

void CodeModule::list(const ArchiveMember& member) {
    if (!listing_) {
        listing_ = true;
        print(listingLine(QStringLiteral("Filename:"), QStringLiteral("Size"),
                          QStringLiteral("Date"), QStringLiteral("Time")));
    }
    print(listingLine(member.Name, QString::number(member.Size),
                      member.Time.toString(QStringLiteral("MM/dd/yy")),
                      member.Time.toString(QStringLiteral("HH:mm"))));
}

std::optional<QString> CodeModule::password(const QString&) {
    return std::nullopt;
}

ReplaceAnswer CodeModule::replace(const QString&) {
    return ReplaceAnswer::None;
}

bool CodeModule::service(qint64, qint64) {
    return true;
}

} // namespace kaart
