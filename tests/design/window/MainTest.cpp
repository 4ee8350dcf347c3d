#include "design/window/Main.h"

#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/surface/Numbers.h"
#include "design/window/AboutForm.h"
#include "design/window/MenuTable.h"
#include "design/window/PanelTable.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace kaart;

namespace {

int opened = 0;
constexpr WindowRow windows[] = {{"FileSave", [](Design&, QWidget*) { ++opened; }},
                                 {"StartKnop", [](Design&, QWidget*) { ++opened; }}};

/// A program folder, a design and its main window.
struct Desk {
    Desk() { window.show(); }

    QString ini() const { return folder.filePath("Kaartwerkje.ini"); }
    QByteArray iniBytes() const {
        QFile file(ini());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    SurfaceView& pic() { return control<SurfaceView>(window, "Pic"); }
    QAction& entry(const char* name, int index = -1) {
        return *window.findChild<QAction*>(fullName(name, index));
    }
    void click(int tool) {
        QTest::mouseClick(&control<VistaButton>(window, "TekenKnop", tool), Qt::LeftButton);
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&pic(), Qt::LeftButton, {}, from);
        // An event of its own: QTest's moves carry no button.
        QMouseEvent move(QEvent::MouseMove, to, pic().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&pic(), &move);
        QTest::mouseRelease(&pic(), Qt::LeftButton, {}, to);
    }

    QTemporaryDir folder;
    Design design{{folder.path(), folder.filePath("Pictures")}};
    Main window{design, windows};
};

} // namespace

class MainTest : public QObject {
    Q_OBJECT

private slots:
    void StartsUprightWithItsSettingsFile() {
        Desk desk;
        QCOMPARE(desk.window.centralWidget()->size(), QSize(1186, 720));
        QCOMPARE(desk.pic().geometry(), QRect(425, 14, 440, 640));
        QVERIFY(desk.iniBytes().endsWith("\r\n0,0,0,0\r\n"));
        QCOMPARE(desk.design.TekenModus, 999);
        QVERIFY(desk.entry("Richting", 1).isChecked());
        QCOMPARE(control<QLabel>(desk.window, "HexLabel").text(),
                 QStringLiteral("Heximaal (#3C3C3C)"));
        QCOMPARE(control<QLabel>(desk.window, "Label11").text(),
                 QStringLiteral("Ronde hoeken bij rechthoek (30)"));
        QCOMPARE(control<QComboBox>(desk.window, "Combo2").count(), 72);
        QCOMPARE(control<QComboBox>(desk.window, "Combo1").currentText(), QStringLiteral("Arial"));
    }

    void ReadsAndMendsItsSettingsFile() {
        const QTemporaryDir folder;
        const auto start = [&](const QByteArray& bytes) {
            QFile file(folder.filePath("Kaartwerkje.ini"));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
            file.close();
            Design design({folder.path(), folder.path()});
            const Main window(design, windows);
            QCOMPARE(design.MargeOnder, bytes.contains("1,2,3,4") ? 4 : 0);
        };
        start("a\r\nb\r\n1,2,3,4\r\n");
        start("damaged");
        QFile file(folder.filePath("Kaartwerkje.ini"));
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().endsWith("0,0,0,0\r\n"));
    }

    void EveryEntryIsThereAndWorksOrIsDisabled() {
        Desk desk;
        QCOMPARE(desk.window.menuBar()->actions().size(), 8);
        for (const MenuRow& row : menuTable()) {
            const QString name = fullName(row.name, row.index);
            if (row.kind == MenuKind::Entry || row.kind == MenuKind::Separator) {
                QCOMPARE(desk.window.findChildren<QAction*>(name).size(), 1);
            } else {
                QCOMPARE(desk.window.findChildren<QMenu*>(name).size(), 1);
            }
        }
        QVERIFY(!desk.entry("FileOpen").isEnabled());
        desk.entry("FileSave").trigger();
        QCOMPARE(opened, 1);
    }

    void AFilterShowsHowFarItIs() {
        Desk desk;
        auto& bar = control<SurfaceView>(desk.window, "Bar");
        QSignalSpy shown(&desk.design, &Design::progressChanged);
        desk.entry("Filter", 5).trigger();
        QCOMPARE(desk.design.Pic().Point(200, 300), black);
        QVERIFY(shown.size() >= 2);
        QVERIFY(bar.isHidden());
        QCOMPARE(bar.Image().size(), QSize(380, 18));
        QCOMPARE(control<QLabel>(desk.window, "BarLabel").text(), "100%");
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void NothingOverlapsInEitherOrientation() {
        Desk desk;
        for (int kind : {1, 2}) {
            desk.entry("Richting", kind).trigger();
            const auto* inside = desk.window.centralWidget();
            const auto children =
                inside->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            for (const QWidget* a : children) {
                for (const QWidget* b : children) {
                    const bool sheet = a->objectName() == "Label1" || b->objectName() == "Label1";
                    if (a < b && !sheet && a->isVisible() && b->isVisible()) {
                        QVERIFY2(!a->geometry().intersects(b->geometry()),
                                 qPrintable(a->objectName() + " and " + b->objectName()));
                    }
                }
                QVERIFY2(inside->rect().contains(a->geometry()), qPrintable(a->objectName()));
            }
        }
        QCOMPARE(desk.pic().geometry(), QRect(425, 14, 640, 440));
        QCOMPARE(control<QWidget>(desk.window, "Frame9").geometry(),
                 QRect(pixels(12240), pixels(6930), pixels(3810), pixels(2955)));
    }

    void DrawsWithTheMouseAndUndoesWithAKey() {
        Desk desk;
        desk.click(0);
        QCOMPARE(control<QLabel>(desk.window, "InfoLabel").text(),
                 QStringLiteral("Tekenen van kromme lijnen uit de vrij hand."));
        control<QScrollBar>(desk.window, "HScroll1", 0).setValue(250);
        desk.drag({20, 30}, {80, 30});
        QCOMPARE(desk.design.Pic().Point(50, 30), RGB(250, 60, 60));
        QCOMPARE(desk.pic().Image(), desk.design.Pic().Image());
        QCOMPARE(control<QLabel>(desk.window, "CoorLabel").text(),
                 QStringLiteral("X : 80 / Y : 30"));
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QTest::keyClick(&desk.window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.design.Pic().Point(50, 30), white);
    }

    void ShortcutsWorkWhereverTheFocusIs() {
        Desk desk;
        desk.click(6);
        QApplication::setActiveWindow(&desk.window);
        opened = 0;
        int tried = 0;
        for (QWidget* at : desk.window.centralWidget()->findChildren<QWidget*>()) {
            if (at->isVisible() && at->isEnabled() && at->focusPolicy() != Qt::NoFocus) {
                at->setFocus();
                QTest::keyClick(at, Qt::Key_S, Qt::ControlModifier);
                QCOMPARE(std::pair(opened, at->objectName()), std::pair(++tried, at->objectName()));
            }
        }
        QVERIFY(tried > 30);
    }

    void ARightClickMovesTheFillSliders() {
        Desk desk;
        desk.design.change([](PixelSurface& pic) { pic.PSet(7, 8, RGB(10, 20, 30)); });
        QTest::mouseClick(&desk.pic(), Qt::RightButton, {}, QPoint(7, 8));
        QCOMPARE(control<QScrollBar>(desk.window, "VulScroll", 0).value(), 10);
        QCOMPARE(control<QScrollBar>(desk.window, "VulScroll", 2).value(), 30);
        QCOMPARE(desk.design.Vulkleur, RGB(10, 20, 30));
    }

    void ButtonsOnOnePlaceSwitchTheirPanels() {
        Desk desk;
        const auto shown = [&](const char* name) {
            return control<QWidget>(desk.window, name).isVisible();
        };
        auto& transparent = control<QCheckBox>(desk.window, "Check4");
        QVERIFY(shown("Frame4") && !shown("Frame7") && !transparent.isEnabled());
        desk.click(6);
        QVERIFY(!shown("Frame4") && shown("Frame7") && transparent.isEnabled());
        QVERIFY(!shown("TekenKnop(6)") && shown("TekenKnop(66)"));
        QVERIFY(desk.design.Gewijzigd);
        desk.click(66);
        QVERIFY(shown("Frame4") && !shown("Frame7") && !transparent.isEnabled());
        desk.click(9);
        QVERIFY(!shown("Frame9") && shown("Frame10") && shown("TekenKnop(55)"));
        desk.click(55);
        QVERIFY(shown("Frame9") && !shown("Frame10"));
    }

    void OnlyTheEraserOffersItsCheck() {
        Desk desk;
        auto& check = control<QCheckBox>(desk.window, "Check3");
        desk.click(4);
        QVERIFY(check.isEnabled());
        desk.click(0);
        QVERIFY(!check.isEnabled());
    }

    void TheSelectionGoesWhenItsMenuIsClosed() {
        Desk desk;
        desk.click(5);
        QTimer::singleShot(0, &desk.window, [&desk] {
            QVERIFY(control<QMenu>(desk.window, "CopySelectie").isVisible());
            QVERIFY(control<QWidget>(desk.window, "Layer").isVisible());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        });
        desk.drag({10, 10}, {60, 50});
        QVERIFY(!control<QWidget>(desk.window, "Layer").isVisible());
        comparePictures(desk.design.Pic().Image(), PixelSurface(440, 640).Image());
    }

    void AidsNeverReachTheDesign() {
        Desk desk;
        for (const char* name : {"Check1", "Check5"}) {
            control<QCheckBox>(desk.window, name).click();
        }
        QCOMPARE(control<QCheckBox>(desk.window, "Check1").text(),
                 QStringLiteral("Tekenkruis Aan"));
        QVERIFY(control<QWidget>(desk.window, "HorLijn").isVisible());
        QVERIFY(control<QWidget>(desk.window, "TopMaat").isVisible());
        desk.click(4);
        QTest::mousePress(&desk.pic(), Qt::LeftButton, {}, QPoint(100, 100));
        QVERIFY(control<QWidget>(desk.window, "Gom").isVisible());
        QTest::mouseRelease(&desk.pic(), Qt::LeftButton, {}, QPoint(100, 100));
        comparePictures(desk.pic().Image(), PixelSurface(440, 640).Image());
    }

    void ResetSetsTheControlsBackAndLeavesTheDesign() {
        Desk desk;
        desk.design.change([](PixelSurface& pic) { pic.PSet(1, 1, black); });
        control<QScrollBar>(desk.window, "HScroll2").setValue(9);
        control<QScrollBar>(desk.window, "VulScroll", 1).setValue(9);
        control<QCheckBox>(desk.window, "BoldCheck").setChecked(true);
        control<QComboBox>(desk.window, "Combo6").setCurrentIndex(2);
        auto& button = control<VistaButton>(desk.window, "ResetKnop");
        {
            Answer no;
            no.press(QMessageBox::No);
            button.click();
            QCOMPARE(desk.design.LijnDikte, 9);
        }
        Answer yes;
        yes.press(QMessageBox::Yes);
        button.click();
        QCOMPARE(yes.seen().value(0),
                 QStringLiteral("Resetten|Wil je alle knoppen weer in de beginstand zetten?"));
        QCOMPARE(desk.design.LijnDikte, 2);
        QCOMPARE(desk.design.Vulkleur, RGB(200, 250, 0));
        QVERIFY(!control<QCheckBox>(desk.window, "BoldCheck").isChecked());
        QCOMPARE(control<QComboBox>(desk.window, "Combo6").currentText(), QStringLiteral("S"));
        QCOMPARE(control<QLineEdit>(desk.window, "Text1").text(), QStringLiteral("Mijn Tekst"));
        QCOMPARE(desk.design.Pic().Point(1, 1), black);
    }

    void ThePuzzleOpensWithThePanelsChoice() {
        Desk desk;
        opened = 0;
        const PuzzleResult& choice = desk.design.Puzzel;
        QVERIFY(!control<VistaButton>(desk.window, "ScoreKnop").isEnabled()); // has no window here
        auto& start = control<VistaButton>(desk.window, "StartKnop");
        start.click();
        QCOMPARE((QList{choice.PuzzleCols, choice.PuzzleRows, choice.PuzzleLevel, opened}),
                 (QList{3, 3, 1, 1}));
        control<QComboBox>(desk.window, "Combo4").setCurrentText(QStringLiteral("6"));
        control<QComboBox>(desk.window, "Combo5").setCurrentText(QStringLiteral("4"));
        control<QComboBox>(desk.window, "Combo6").setCurrentText(QStringLiteral("M"));
        start.click();
        QCOMPARE((QList{choice.PuzzleCols, choice.PuzzleRows, choice.PuzzleLevel, opened}),
                 (QList{6, 4, 2, 2}));
    }

    void ANewDesignIsAskedFor() {
        Desk desk;
        desk.design.change([](PixelSurface& pic) { pic.PSet(1, 1, black); });
        for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
            Answer answer;
            answer.press(button);
            desk.entry("FileNew").trigger();
            QCOMPARE(answer.seen().value(0),
                     QStringLiteral("Nieuw|Wil je een nieuw ontwerp maken?"));
            QCOMPARE(desk.design.Pic().Point(1, 1) == black, button == QMessageBox::No);
        }
    }

    void ClosingAsksOnlyAboutAChangedDesign() {
        Desk desk;
        desk.design.MargeLinks = 7;
        {
            Answer nothing;
            QVERIFY(desk.window.close());
            QVERIFY(nothing.seen().isEmpty());
            QVERIFY(desk.iniBytes().endsWith("\r\n0,0,0,0\r\n"));
        }
        desk.window.show();
        desk.design.Gewijzigd = true;
        {
            Answer no;
            no.press(QMessageBox::No);
            QVERIFY(!desk.window.close());
            QVERIFY(desk.window.isVisible());
            QVERIFY(desk.iniBytes().endsWith("\r\n0,0,0,0\r\n"));
        }
        Answer yes;
        yes.press(QMessageBox::Yes);
        desk.entry("FileExit").trigger();
        QVERIFY(!desk.window.isVisible());
        QCOMPARE(yes.seen().value(0),
                 QStringLiteral("Afsluiten|Ontwerp is gewijzigd, wil je toch afsluiten?"));
        QVERIFY(desk.iniBytes().endsWith("\r\n7,0,0,0\r\n"));
    }

    void ShortcutsWaitForTheEndOfADrag() {
        Desk desk;
        desk.click(1);
        QTest::mousePress(&desk.pic(), Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(desk.design.Pic().Point(10, 10), black);
        desk.entry("EditUndo").trigger();
        QCOMPARE(desk.design.Pic().Point(10, 10), black);
        desk.entry("Richting", 2).trigger();
        QCOMPARE(desk.pic().size(), QSize(440, 640));
        QTest::mouseRelease(&desk.pic(), Qt::LeftButton, {}, QPoint(10, 10));
        QVERIFY(desk.entry("Richting", 1).isChecked());
    }

    void TheAboutWindowNamesItsMaker() {
        AboutForm form;
        QCOMPARE(form.windowTitle(), QStringLiteral("About Me..."));
        QVERIFY(control<QLabel>(form, "Label1")
                    .text()
                    .startsWith(QStringLiteral("This program is design by Brelmo")));
        form.show();
        QTest::mouseClick(&control<VistaButton>(form, "CancelKnop"), Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }
};

KAART_TEST(MainTest)
#include "MainTest.moc"
