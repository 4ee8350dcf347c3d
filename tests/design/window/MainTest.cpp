#include "design/window/Main.h"

#include "design/surface/Numbers.h"
#include "design/window/AboutForm.h"
#include "design/window/MenuTable.h"
#include "design/window/PanelTable.h"
#include "tests/support/Answer.h"
#include "tests/support/MainDesk.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

int opened = 0;
constexpr WindowRow windows[] = {{"FileSave", [](Design&, QWidget*) { ++opened; }},
                                 {"StartKnop", [](Design&, QWidget*) { ++opened; }}};

struct Desk : MainDesk {
    Desk() : MainDesk(windows) {}
    QByteArray ini() const {
        QFile file(folder->filePath("Kaartwerkje.ini"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

class MainTest : public QObject {
    Q_OBJECT

private slots:
    void StartsUprightWithItsSettingsFile() {
        Desk desk;
        QCOMPARE(desk.window.centralWidget()->size(), QSize(1186, 720));
        QCOMPARE(desk.pic().geometry(), QRect(425, 14, 440, 640));
        QVERIFY(desk.ini().endsWith("\r\n0,0,0,0\r\n"));
        QCOMPARE(desk.design.TekenModus, 999);
        QVERIFY(desk.entry("Richting(1)").isChecked());
        QCOMPARE(desk.text("HexLabel"), "Heximaal (#3C3C3C)");
        QCOMPARE(desk.text("Label11"), "Ronde hoeken bij rechthoek (30)");
        QCOMPARE(desk.at<QComboBox>("Combo2").count(), 72);
        QCOMPARE(desk.at<QComboBox>("Combo1").currentText(), "Arial");
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
        auto& bar = desk.at<SurfaceView>("Bar");
        QSignalSpy shown(&desk.design, &Design::progressChanged);
        desk.entry("Filter(5)").trigger();
        QCOMPARE(desk.design.Pic().Point(200, 300), black);
        QVERIFY(shown.size() >= 2);
        QVERIFY(bar.isHidden());
        QCOMPARE(bar.Image().size(), QSize(380, 18));
        QCOMPARE(desk.text("BarLabel"), "100%");
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void NothingOverlapsInEitherOrientation() {
        Desk desk;
        for (int kind : {1, 2}) {
            desk.entry(kind == 1 ? "Richting(1)" : "Richting(2)").trigger();
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
        QCOMPARE(desk.at<QWidget>("Frame9").geometry(),
                 QRect(pixels(12240), pixels(6930), pixels(3810), pixels(2955)));
    }

    void DrawsWithTheMouseAndUndoesWithAKey() {
        Desk desk;
        desk.click("TekenKnop(0)");
        QCOMPARE(desk.text("InfoLabel"), "Tekenen van kromme lijnen uit de vrij hand.");
        desk.at<QScrollBar>("HScroll1(0)").setValue(250);
        drag(desk.pic(), {20, 30}, {80, 30});
        QCOMPARE(desk.design.Pic().Point(50, 30), RGB(250, 60, 60));
        QCOMPARE(desk.pic().Image(), desk.design.Pic().Image());
        QCOMPARE(desk.text("CoorLabel"), "X : 80 / Y : 30");
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QTest::keyClick(&desk.window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.design.Pic().Point(50, 30), white);
    }

    void ShortcutsWorkWhereverTheFocusIs() {
        Desk desk;
        desk.click("TekenKnop(6)");
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
        QCOMPARE(desk.at<QScrollBar>("VulScroll(0)").value(), 10);
        QCOMPARE(desk.at<QScrollBar>("VulScroll(2)").value(), 30);
        QCOMPARE(desk.design.Vulkleur, RGB(10, 20, 30));
    }

    void ButtonsOnOnePlaceSwitchTheirPanels() {
        Desk desk;
        auto& transparent = desk.at<QCheckBox>("Check4");
        QVERIFY(desk.shown("Frame4") && !desk.shown("Frame7") && !transparent.isEnabled());
        desk.click("TekenKnop(6)");
        QVERIFY(!desk.shown("Frame4") && desk.shown("Frame7") && transparent.isEnabled());
        QVERIFY(!desk.shown("TekenKnop(6)") && desk.shown("TekenKnop(66)"));
        QVERIFY(desk.design.Gewijzigd);
        desk.click("TekenKnop(66)");
        QVERIFY(desk.shown("Frame4") && !desk.shown("Frame7") && !transparent.isEnabled());
        desk.click("TekenKnop(9)");
        QVERIFY(!desk.shown("Frame9") && desk.shown("Frame10") && desk.shown("TekenKnop(55)"));
        desk.click("TekenKnop(55)");
        QVERIFY(desk.shown("Frame9") && !desk.shown("Frame10"));
    }

    void AidsNeverReachTheDesign() {
        Desk desk;
        for (const char* name : {"Check1", "Check5"}) {
            desk.at<QCheckBox>(name).click();
        }
        QCOMPARE(desk.at<QCheckBox>("Check1").text(), "Tekenkruis Aan");
        QVERIFY(desk.shown("HorLijn") && desk.shown("TopMaat"));
        desk.click("TekenKnop(4)");
        QVERIFY(desk.at<QCheckBox>("Check3").isEnabled());
        QTest::mousePress(&desk.pic(), Qt::LeftButton, {}, QPoint(100, 100));
        QVERIFY(desk.shown("Gom"));
        QTest::mouseRelease(&desk.pic(), Qt::LeftButton, {}, QPoint(100, 100));
        comparePictures(desk.pic().Image(), PixelSurface(440, 640).Image());
        desk.click("TekenKnop(0)");
        QVERIFY(!desk.at<QCheckBox>("Check3").isEnabled());
    }

    void ResetSetsTheControlsBackAndLeavesTheDesign() {
        Desk desk;
        desk.design.change([](PixelSurface& pic) { pic.PSet(1, 1, black); });
        desk.at<QScrollBar>("HScroll2").setValue(9);
        desk.at<QScrollBar>("VulScroll(1)").setValue(9);
        desk.at<QCheckBox>("BoldCheck").setChecked(true);
        desk.at<QComboBox>("Combo6").setCurrentIndex(2);
        auto& button = desk.at<VistaButton>("ResetKnop");
        {
            Answer no;
            no.press(QMessageBox::No);
            button.click();
            QCOMPARE(desk.design.LijnDikte, 9);
        }
        Answer yes;
        yes.press(QMessageBox::Yes);
        button.click();
        QCOMPARE(yes.seen().value(0), "Resetten|Wil je alle knoppen weer in de beginstand zetten?");
        QCOMPARE(desk.design.LijnDikte, 2);
        QCOMPARE(desk.design.Vulkleur, RGB(200, 250, 0));
        QVERIFY(!desk.at<QCheckBox>("BoldCheck").isChecked());
        QCOMPARE(desk.at<QComboBox>("Combo6").currentText(), "S");
        QCOMPARE(desk.at<QLineEdit>("Text1").text(), "Mijn Tekst");
        QCOMPARE(desk.design.Pic().Point(1, 1), black);
    }

    void ThePuzzleOpensWithThePanelsChoice() {
        Desk desk;
        opened = 0;
        const PuzzleResult& choice = desk.design.Puzzel;
        QVERIFY(!desk.at<VistaButton>("ScoreKnop").isEnabled()); // has no window here
        auto& start = desk.at<VistaButton>("StartKnop");
        start.click();
        QCOMPARE((QList{choice.PuzzleCols, choice.PuzzleRows, choice.PuzzleLevel, opened}),
                 (QList{3, 3, 1, 1}));
        desk.at<QComboBox>("Combo4").setCurrentText("6");
        desk.at<QComboBox>("Combo5").setCurrentText("4");
        desk.at<QComboBox>("Combo6").setCurrentText("M");
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
            QCOMPARE(answer.seen().value(0), "Nieuw|Wil je een nieuw ontwerp maken?");
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
            QVERIFY(desk.ini().endsWith("\r\n0,0,0,0\r\n"));
        }
        desk.window.show();
        desk.design.Gewijzigd = true;
        {
            Answer no;
            no.press(QMessageBox::No);
            QVERIFY(!desk.window.close());
            QVERIFY(desk.window.isVisible());
            QVERIFY(desk.ini().endsWith("\r\n0,0,0,0\r\n"));
        }
        Answer yes;
        yes.press(QMessageBox::Yes);
        desk.entry("FileExit").trigger();
        QVERIFY(!desk.window.isVisible());
        QCOMPARE(yes.seen().value(0), "Afsluiten|Ontwerp is gewijzigd, wil je toch afsluiten?");
        QVERIFY(desk.ini().endsWith("\r\n7,0,0,0\r\n"));
    }

    void EntriesWaitForTheEndOfADrag() {
        Desk desk;
        desk.click("TekenKnop(1)");
        QTest::mousePress(&desk.pic(), Qt::LeftButton, {}, QPoint(10, 10));
        for (const char* entry : {"EditUndo", "ToolsRanden(4)", "Richting(2)"}) {
            desk.entry(entry).trigger();
            QCOMPARE(desk.design.Pic().Point(10, 10), black);
            QCOMPARE(desk.design.Pic().Point(0, 0), white);
        }
        QCOMPARE(desk.pic().size(), QSize(440, 640));
        QTest::mouseRelease(&desk.pic(), Qt::LeftButton, {}, QPoint(10, 10));
        QVERIFY(desk.entry("Richting(1)").isChecked());
        desk.entry("ToolsRanden(4)").trigger();
        QCOMPARE(desk.design.Pic().Point(0, 0), desk.design.Tekenkleur);
    }

    void TheAboutWindowNamesItsMaker() {
        AboutForm form;
        QCOMPARE(form.windowTitle(), "About Me...");
        QVERIFY(
            control<QLabel>(form, "Label1").text().startsWith("This program is design by Brelmo"));
        form.show();
        QTest::mouseClick(&control<VistaButton>(form, "CancelKnop"), Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }
};

KAART_TEST(MainTest)
#include "MainTest.moc"
