#pragma once

#include "addresses/AddressList.h"
#include "design/surface/ColorRef.h"

#include <QDialog>

namespace kaart {

class Design;
class RecordModel;

/// "Adressenlijst": shows one address at a time, adds, changes, deletes and prints them. Only
/// SaveKnop writes the file; closing in any other way forgets all changes. Failures to read or
/// write it are silent, a PDF file that could not be written is reported.
class AdresForm : public QDialog {
    Q_OBJECT

public:
    explicit AdresForm(Design& design, QWidget* parent = nullptr);

    double flashPause = 0.05; ///< seconds that each field stays coloured

    /// Reads the file and shows the first address. Kept: with no address Label7 says "1 / 0".
    void LoadVerzameling();
    void SaveVerzameling();
    /// Shows address `number`, from 1; empty fields when there's no address at all.
    void ShowAddress(int number);

private:
    void colourControls();
    void nameControls();
    void connectControls();
    QStringList typedFields() const;
    void showFields(const QStringList& address);
    void showPosition(int number);
    void setScrollRange();
    std::optional<QStringList> takeFields(int required);
    void add();
    void change();
    void remove();
    void print();
    void flash(ColorRef colour);

    const QString path_;
    Addresses addresses_;
    RecordModel& store_; ///< shows addresses_ in ListView1
    int Current = 1;     ///< the address on view, from 1
};

} // namespace kaart
