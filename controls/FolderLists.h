#pragma once

#include <QObject>
#include <QString>

class QComboBox;
class QListWidget;

namespace kaart {

/// Lets the user browse the disk with two lists: one of places (the home folder, the drives and
/// what is mounted for the user) and one of the folders above and below the open one. A chosen
/// place opens; of the folders a double click or Enter opens one. Hidden folders are left out.
class FolderLists : public QObject {
    Q_OBJECT

public:
    /// The lists outlive this object or own it.
    FolderLists(QComboBox& places, QListWidget& folders, QObject* parent);
    /// Of the folders alone: from the root of the open one every place can be reached, too.
    FolderLists(QListWidget& folders, QObject* parent);

    /// Opens a folder; the home folder when there is no such one.
    void open(const QString& path);
    const QString& path() const { return path_; }

signals:
    void pathChanged(const QString& path);

private:
    void addPlaces();
    void showPlace();
    void addFolder(const QString& path, bool isOpen);

    QComboBox* places_ = nullptr;
    QListWidget& folders_;
    QString path_;
};

} // namespace kaart
