#include "controls/FolderLists.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QStyle>

namespace kaart {

namespace {

QString nameOf(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? QDir::toNativeSeparators(path) : name;
}

QStringList subfolders(const QString& path) {
    QStringList paths;
    const QDir folder(path);
    for (const QString& name :
         folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot,
                          QDir::Name | QDir::IgnoreCase | QDir::LocaleAware)) {
        paths << folder.absoluteFilePath(name);
    }
    return paths;
}

/// The folders from the root down to a path, itself included.
QStringList chainTo(const QString& path) {
    QStringList chain{path};
    for (QDir folder(path); !folder.isRoot() && folder.cdUp();) {
        chain.prepend(folder.absolutePath());
    }
    return chain;
}

} // namespace

FolderLists::FolderLists(QComboBox& places, QListWidget& folders, QObject* parent)
    : FolderLists(folders, parent) {
    places_ = &places;
    addPlaces();
    connect(places_, &QComboBox::activated, this,
            [this](int row) { open(places_->itemData(row).toString()); });
}

FolderLists::FolderLists(QListWidget& folders, QObject* parent)
    : QObject(parent), folders_(folders) {
    folders_.setIconSize(QSize(16, 16));
    connect(&folders_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { open(item->data(Qt::UserRole).toString()); });
}

void FolderLists::addPlaces() {
    QStringList paths{QDir::homePath()};
    for (const QFileInfo& drive : QDir::drives()) {
        paths << drive.absoluteFilePath();
    }
    // Asked by their folders, since the state of a dead network drive may be long in coming.
    const QString user = nameOf(QDir::homePath());
    paths << subfolders(QStringLiteral("/media/") + user)
          << subfolders(QStringLiteral("/run/media/") + user);
    for (const QString& path : paths) {
        places_->addItem(QDir::toNativeSeparators(path), path);
    }
}

void FolderLists::open(const QString& path) {
    const QDir folder(QFileInfo(path).isDir() ? path : QDir::homePath());
    path_ = folder.absolutePath();
    showPlace();
    folders_.clear();
    const QStringList chain = chainTo(path_);
    for (const QString& above : chain) {
        addFolder(above, true);
    }
    folders_.setCurrentRow(static_cast<int>(chain.size()) - 1);
    for (const QString& below : subfolders(path_)) {
        addFolder(below, false);
    }
    folders_.scrollToItem(folders_.currentItem(), QAbstractItemView::PositionAtTop);
    emit pathChanged(path_);
}

void FolderLists::showPlace() {
    qsizetype longest = -1;
    for (int row = 0; places_ != nullptr && row < places_->count(); ++row) {
        const QString place = places_->itemData(row).toString();
        const bool above =
            path_ == place || QDir(place).isRoot() || path_.startsWith(place + QLatin1Char('/'));
        if (above && place.size() > longest) {
            longest = place.size();
            places_->setCurrentIndex(row);
        }
    }
}

void FolderLists::addFolder(const QString& path, bool isOpen) {
    const QStyle& style = *QApplication::style();
    auto* item = new QListWidgetItem(
        style.standardIcon(isOpen ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon), nameOf(path),
        &folders_);
    item->setData(Qt::UserRole, path);
    item->setToolTip(QDir::toNativeSeparators(path));
}

} // namespace kaart
