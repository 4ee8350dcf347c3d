#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/tools/CanvasCommands.h"
#include "design/window/Main.h"
#include "design/window/MenuTable.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QMenu>
#include <QTemporaryDir>

using namespace kaart;

class CanvasMenuTest : public QObject {
    Q_OBJECT

public slots:
    void open(const QUrl& url) { opened_ << url.toString(); }

private slots:
    void initTestCase() { window_.show(); }

    void TheColourRunsOpenFromTheirButton() {
        QTimer::singleShot(0, &window_, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr && menu->objectName() == "Gradientkleur");
            menu->setActiveAction(menu->actions().at(2));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::mouseClick(&control<VistaButton>(window_, "TekenKnop", 8), Qt::LeftButton);
        QCOMPARE(design_.Pic().Point(5, 639), design_.Tekenkleur);
        entry("EditUndo").trigger();
        QCOMPARE(design_.Pic().Point(5, 639), white);
    }

    void ADragIsNotCutInto() {
        auto& pic = control<SurfaceView>(window_, "Pic");
        QTest::mouseClick(&control<VistaButton>(window_, "TekenKnop", 1), Qt::LeftButton);
        QTest::mousePress(&pic, Qt::LeftButton, {}, QPoint(100, 100));
        entry("ToolsRanden(4)").trigger();
        QCOMPARE(design_.Pic().Point(0, 0), white);
        QTest::mouseRelease(&pic, Qt::LeftButton, {}, QPoint(100, 100));
        entry("ToolsRanden(4)").trigger();
        QCOMPARE(design_.Pic().Point(0, 0), design_.Tekenkleur);
    }

    void TheClipboardHoldsTheDesignAsItWas() {
        Answer ok;
        ok.press(QMessageBox::Ok);
        const QImage before = design_.Pic().Image();
        entry("EditClipboard").trigger();
        design_.change([](PixelSurface& pic) { pic.PSet(9, 9, colourOf('4')); });
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
        QVERIFY(!entry("HelpHelp").isEnabled());
        for (const char* name : {"Helpscreen(1)", "Helpscreen(2)", "HelpSpecialeTekens",
                                 "HelpMeerSoftware", "HelpMeerAfbeeldingen"}) {
            entry(name).trigger();
        }
        QVERIFY(QFile::remove(document_));
        entry("Helpscreen(2)").trigger();
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
    QAction& entry(const char* name) { return *window_.findChild<QAction*>(name); }

    QString writeDocument() const {
        QFile file(folder_.filePath("Data/Beeldscherm.pdf"));
        const bool written = QDir(folder_.path()).mkpath("Data") && file.open(QFile::WriteOnly);
        return written ? file.fileName() : QString();
    }

    QTemporaryDir folder_;
    const QString document_ = writeDocument(); // before the window looks for it
    Design design_{{folder_.path(), folder_.path()}};
    Main window_{design_, {}};
    QStringList opened_;
};

KAART_TEST(CanvasMenuTest)
#include "CanvasMenuTest.moc"
