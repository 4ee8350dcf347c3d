#include "addresses/PrintAdressen.h"
#include "controls/PaperPrinter.h"
#include "controls/Printers.h"
#include "tests/support/PdfFile.h"
#include "tests/support/PrintJobs.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace kaart;

namespace {

constexpr const char* queue = "Proefprinter";

/// A printer that takes PDF and doesn't reach the edges of its paper.
constexpr const char* driver = "lsb/usr/cupsfilters/Generic-PDF_Printer-PDF.ppd";

QString program(const QString& name) {
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(name, {"/usr/sbin", "/sbin"}) : found;
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& path, const QString& text) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

/// A print service of its own, in a folder of its own, which nobody else can reach. Its one queue
/// prints into a file.
class PrintService {
public:
    ~PrintService() {
        daemon_.terminate();
        if (daemon_.state() != QProcess::NotRunning && !daemon_.waitForFinished(10000)) {
            daemon_.kill();
            daemon_.waitForFinished();
        }
        qunsetenv("CUPS_SERVER");
    }

    /// What keeps it from starting; empty when it runs and this process prints with it.
    QString start() {
        for (const char* name : {"cupsd", "lpadmin", "lpstat"}) {
            if (program(name).isEmpty()) {
                return QStringLiteral("%1 is missing (Debian's package cups)").arg(name);
            }
        }
        if (!configure()) {
            return QStringLiteral("its folder could not be filled");
        }
        qputenv("CUPS_SERVER", path("socket").toUtf8());
        daemon_.setProcessChannelMode(QProcess::MergedChannels);
        daemon_.start(program("cupsd"),
                      {"-f", "-c", path("cupsd.conf"), "-s", path("cups-files.conf")});
        const auto runs = [&] { return ask("lpstat", {"-r"}).contains("is running"); };
        const auto ended = [&] { return daemon_.state() == QProcess::NotRunning; };
        if (!QTest::qWaitFor([&] { return runs() || ended(); }, 15000) || ended()) {
            return "cupsd does not start: " +
                   QString::fromUtf8(daemon_.readAll() + read(path("errors")));
        }
        const QString refusal = ask("lpadmin", {"-p", queue, "-E", "-v", "file:" + printed(), "-m",
                                                driver, "-o", "PageSize=Letter"});
        return ask("lpstat", {"-p", queue}).contains("idle") ? QString() : "no queue: " + refusal;
    }

    /// The file that the queue prints into; the last job's.
    QString printed() const { return path("printed.pdf"); }
    /// One line for each job that was printed: "<sheets> <paper>".
    QStringList log() const {
        return QString::fromUtf8(read(path("pages"))).split('\n', Qt::SkipEmptyParts);
    }
    /// The file of a job as the program sent it.
    QString sent(int job) const { return path(QString::asprintf("spool/d%05d-001", job)); }

private:
    QString path(const QString& name) const { return folder_.filePath(name); }

    static QString ask(const QString& name, const QStringList& arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program(name), arguments);
        process.waitForFinished(20000);
        return QString::fromUtf8(process.readAll());
    }

    bool configure() {
        // The filters may run as another user.
        QFile::setPermissions(folder_.path(), QFile::permissions(folder_.path()) | QFile::ExeGroup |
                                                  QFile::ExeOther);
        for (const char* name : {"root", "spool", "cache", "state", "temp"}) {
            if (!QDir(folder_.path()).mkdir(name)) {
                return false;
            }
        }
        const QString files = QStringLiteral("ServerRoot %1/root\nRequestRoot %1/spool\n"
                                             "CacheDir %1/cache\nStateDir %1/state\n"
                                             "TempDir %1/temp\nAccessLog %1/accesses\n"
                                             "ErrorLog %1/errors\nPageLog %1/pages\n"
                                             "FileDevice Yes\n");
        const QString rules = QStringLiteral("Listen %1/socket\nBrowsing No\nWebInterface No\n"
                                             "DefaultAuthType None\nPreserveJobFiles Yes\n"
                                             "PageLogFormat %{job-impressions-completed} %{media}\n"
                                             "<Location />\nAllow all\n</Location>\n"
                                             "<Policy default>\n<Limit All>\nAllow all\n</Limit>\n"
                                             "</Policy>\n");
        return write(path("cups-files.conf"), files.arg(folder_.path())) &&
               write(path("cupsd.conf"), rules.arg(folder_.path()));
    }

    QTemporaryDir folder_;
    QProcess daemon_;
};

} // namespace

class PrintQueueTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PrintService> service_;

private slots:
    void initTestCase() {
        service_ = std::make_unique<PrintService>();
        const QString hindrance = service_->start();
        if (!hindrance.isEmpty() || !PdfFile::canBeRead()) {
            QSKIP(qPrintable("NO PRINT QUEUE WAS TRIED: " +
                             (hindrance.isEmpty() ? "poppler-utils is missing" : hindrance)));
        }
    }
    void cleanupTestCase() { service_.reset(); }

    void QueueIsAmongThePrinters() { QVERIFY(findPrinters().DeviceNames.contains(queue)); }

    void JobComesOutOfTheQueue_data() {
        printJobRows();
        QTest::newRow("addresses") << PrintJob{
            "addresses",
            [](PrinterObject& printer, const PrintOrder&) {
                const Addresses sheetAndAHalf(60, QStringList(addressFields, "Dorpsplein 3"));
                return PrintAdressen(printer, sheetAndAHalf, QDateTime::currentDateTime());
            },
            false,
            2,
            {}};
    }
    void JobComesOutOfTheQueue() {
        QFETCH(PrintJob, job);
        const qsizetype before = service_->log().size();
        QVERIFY(job.layout(*PaperPrinter::forSystemPrinter(queue), orderOf(job)));
        QTRY_COMPARE_WITH_TIMEOUT(service_->log().size(), before + 1, 30000);
        QCOMPARE(service_->log().last(), "2 A4");

        const QString sheet = job.orientation == 1 ? "595 x 842 pts (A4)" : "842 x 595 pts (A4)";
        const PdfFile sent(service_->sent(static_cast<int>(before) + 1));
        QCOMPARE(sent.pages(), QStringList({sheet, sheet}));
        QCOMPARE(sent.pictures().size(), 2 * job.pictures.size());
        const PdfFile printed(service_->printed());
        QCOMPARE(printed.pictures(), sent.pictures()); // as large as they were sent
        QImage paper = printed.rendered(2, 72);
        QCOMPARE(paper.size(), QSize(595, 842)); // a lying sheet is printed sideways
        paper = paper.transformed(QTransform().rotate(job.orientation == 1 ? 0 : 90));
        for (const QRect& place : job.pictures) {
            const QRect inner =
                QRect(place.topLeft() / 20, place.size() / 20) - QMargins(2, 2, 2, 2);
            QCOMPARE(paper.pixel(inner.topLeft()), quarters[0]);
            QCOMPARE(paper.pixel(inner.topRight()), quarters[1]);
            QCOMPARE(paper.pixel(inner.bottomLeft()), quarters[2]);
            QCOMPARE(paper.pixel(inner.bottomRight()), quarters[3]);
        }
    }
};

KAART_TEST(PrintQueueTest)
#include "PrintQueueTest.moc"
