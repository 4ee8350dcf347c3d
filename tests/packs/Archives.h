#pragma once

#include "tests/support/Test.h"

#include <zip.h>

/// An entry to be packed: a name as its bytes in the archive, and contents.
struct Packed {
    QByteArray Name;
    QByteArray Bytes;
    zip_uint16_t Encryption = ZIP_EM_NONE; ///< with the password "geheim"
    zip_uint32_t Mode = 0100644;
    zip_flags_t Encoding = ZIP_FL_ENC_UTF_8;
};

/// Writes an archive with all of them. Plain ones are dated 2020-02-03 04:05:06.
inline void writeZip(const QString& path, const QList<Packed>& entries) {
    zip_t* zip = zip_open(qPrintable(path), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    QVERIFY(zip != nullptr);
    for (const Packed& entry : entries) {
        zip_source_t* bytes =
            zip_source_buffer(zip, entry.Bytes.constData(), zip_uint64_t(entry.Bytes.size()), 0);
        const auto index =
            zip_uint64_t(zip_file_add(zip, entry.Name.constData(), bytes, entry.Encoding));
        zip_file_set_external_attributes(zip, index, 0, ZIP_OPSYS_UNIX, entry.Mode << 16);
        if (entry.Encryption == ZIP_EM_NONE) {
            const QDateTime time({2020, 2, 3}, {4, 5, 6});
            zip_file_set_mtime(zip, index, time.toSecsSinceEpoch(), 0);
        } else { // the old method's check is made of the time of packing
            QCOMPARE(zip_file_set_encryption(zip, index, entry.Encryption, "geheim"), 0);
        }
    }
    QCOMPARE(zip_close(zip), 0);
}
