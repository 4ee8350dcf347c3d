#pragma once

#include <QDialog>

class QProgressBar;

namespace kaart {

class Design;
class FolderLists;

/// "Uitpakken (Unzippen)": unpacks the zip file that is picked into the folder that it lies in, and
/// stays open for the next. Begins in the program folder. How it went is not shown; long work has a
/// bar, and closing the window ends it, with the files that are whole by then. Kept: the name
/// picked stays when another folder opens, and with none picked the label's first text is taken for
/// one.
class UnzipForm : public QDialog {
    Q_OBJECT

public:
    explicit UnzipForm(Design& design, QWidget* parent = nullptr);

private:
    void dress();
    void listFiles(const QString& folder);
    void unzip();
    void setBusy(bool busy);

    FolderLists* folders_;
    QProgressBar* bar_;
};

} // namespace kaart
