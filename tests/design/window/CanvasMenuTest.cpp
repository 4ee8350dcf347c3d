#include "design/tools/CanvasCommands.h"
#include "design/window/MenuTable.h"
#include "tests/support/Answer.h"
#include "tests/support/MainDesk.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

class CanvasMenuTest : public QObject {
    Q_OBJECT

public slots:
    void open(const QUrl& url) { opened_ << url.toString(); }

private slots:
    void TheColourRunsOpenFromTheirButton() {
        desk_.onPopUp([](QMenu& menu) {
            QCOMPARE(menu.objectName(), "Gradientkleur");
            menu.setActiveAction(menu.actions().at(2));
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        desk_.click("TekenKnop(8)");
        QCOMPARE(desk_.design.Pic().Point(5, 639), desk_.design.Tekenkleur);
        desk_.entry("EditUndo").trigger();
        QCOMPARE(desk_.design.Pic().Point(5, 639), white);
    }

    void TheClipboardHoldsTheDesignAsItWas() {
        Answer ok;
        ok.press(QMessageBox::Ok);
        desk_.entry("ToolsRanden(4)").trigger();
        const QImage before = desk_.design.Pic().Image();
        desk_.entry("EditClipboard").trigger();
        desk_.design.change([](PixelSurface& pic) { pic.PSet(9, 9, colourOf('4')); });
        comparePictures(QGuiApplication::clipboard()->image(), before);
        QCOMPARE(ok.seen(), QStringList("Mijn Kaartwerkje|Afbeelding is gecopyeerd naar het "
                                        "Clipboard voor\r\nverdere bewerking in een ander "
                                        "programma."));
    }

    void HelpOpensWhatIsThereAndTellsOfTheRest() {
        for (const char* scheme : {"file", "https"}) {
            QDesktopServices::setUrlHandler(scheme, this, "open");
        }
        Answer ok;
        ok.press(QMessageBox::Ok);
        QVERIFY(!desk_.entry("HelpHelp").isEnabled());
        for (const char* name : {"Helpscreen(1)", "Helpscreen(2)", "HelpSpecialeTekens",
                                 "HelpMeerSoftware", "HelpMeerAfbeeldingen"}) {
            desk_.entry(name).trigger();
        }
        QVERIFY(QFile::remove(document_));
        desk_.entry("Helpscreen(2)").trigger();
        QCOMPARE(ok.seen(), QStringList({" Scherminfo|" + screenInfo(96, {800, 800}),
                                         "Mijn Kaartwerkje|" + specialCharacters(),
                                         "Help|Beeldscherm.pdf kan niet worden geopend."}));
        QCOMPARE(opened_, QStringList({"file://" + document_, "https://nl.libreoffice.org/",
                                       "https://commons.wikimedia.org/"}));
        for (const char* scheme : {"file", "https"}) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

private:
    static std::shared_ptr<QTemporaryDir> folderWithDocument() {
        auto folder = std::make_shared<QTemporaryDir>();
        QDir(folder->path()).mkdir("Data");
        QFile(folder->filePath("Data/Beeldscherm.pdf")).open(QFile::WriteOnly);
        return folder;
    }

    MainDesk desk_{{}, folderWithDocument()};
    const QString document_ = desk_.folder->filePath("Data/Beeldscherm.pdf");
    QStringList opened_;
};

KAART_TEST(CanvasMenuTest)
#include "CanvasMenuTest.moc"
