#include "canvas/logtexts.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/testcanvas.h"
#include "tests/platform/smalldisk.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>

#include <cstdio>

namespace
{

const QString kSave = QStringLiteral("--save");

QStringList pictures(const QString &folder)
{
    return QDir(folder).entryList({ "screenshot_*.png" });
}

void draw(TestCanvas &canvas)
{
    canvas.setPenColor(Qt::blue);
    canvas.line(QPoint(10, 75), QPoint(190, 75));
}

/// Saves a picture and prints the path and the error.
int saveAndTell()
{
    TestCanvas canvas;
    draw(canvas);
    const QString path = canvas.savePicture();
    std::printf("%s\n%s\n", qPrintable(path), qPrintable(canvas.saveError()));
    return 0;
}

} // namespace

class TestPictureExport : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void emptyBoardsGiveNoPicture();
    void picturesHoldTheMarksOnly();
    void savedIsWhatIsShown();
    void anotherFolderOrAReason();
    void aNamedFileGetsWhatIsShown();

private:
    const QString m_folder = QCoreApplication::applicationDirPath();
};

void TestPictureExport::cleanup()
{
    for (const QString &name : pictures(m_folder))
        QFile::remove(m_folder + '/' + name);
}

void TestPictureExport::emptyBoardsGiveNoPicture()
{
    TestCanvas canvas;
    const LogRecorder log;
    canvas.renderToImage();
    QVERIFY(canvas.savePicture().isEmpty());
    QVERIFY(!canvas.saveError().isEmpty());
    QVERIFY(LogRecorder::take().isEmpty());
    draw(canvas);
    canvas.setSize(QSizeF(200, 0));
    canvas.renderToImage();
    QVERIFY(canvas.savePicture().isEmpty());
    QVERIFY(pictures(m_folder).isEmpty());
}

void TestPictureExport::picturesHoldTheMarksOnly()
{
    TestCanvas canvas(QSizeF(1920.7, 1080.2));
    draw(canvas);
    const LogRecorder log;
    canvas.renderToImage();
    const QString name = pictures(m_folder).value(0);
    QVERIFY(QRegularExpression("^screenshot_\\d{8}_\\d{6}\\.png$").match(name).hasMatch());
    QCOMPARE(LogRecorder::take(),
        QStringList(LogRecorder::line(
            CanvasLog::kImageSaved, QDir::toNativeSeparators(m_folder + '/' + name))));
    const QImage picture(m_folder + '/' + name);
    QCOMPARE(picture.size(), QSize(1920, 1080));
    QVERIFY(picture.hasAlphaChannel());
    QCOMPARE(picture.pixelColor(100, 75), QColor(Qt::blue));
    QCOMPARE(picture.pixel(100, 500), qRgba(0, 0, 0, 0));
}

void TestPictureExport::savedIsWhatIsShown()
{
    TestCanvas canvas;
    canvas.drag(MyPainter::ArrowMode, { QPoint(10, 140), QPoint(100, 140) });
    canvas.drag(MyPainter::FreehandMode, { QPoint(20, 20), QPoint(150, 20), QPoint(150, 120) });
    const QImage saved(canvas.savePicture());
    QVERIFY(canvas.saveError().isEmpty());
    QCOMPARE(saved.pixel(120, 40), qRgba(0, 0, 0, 0)); // the curve is not filled
    QImage shown(200, 150, QImage::Format_ARGB32);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.setCompositionMode(QPainter::CompositionMode_Source); // blending would round
    canvas.paint(&painter);
    painter.end();
    QCOMPARE(saved.convertToFormat(shown.format()), shown);

    QSet<QString> paths; // even within one second nothing is replaced
    for (int i = 0; i < 4; ++i)
        paths.insert(canvas.savePicture());
    QCOMPARE(paths.size(), 4);
    QCOMPARE(pictures(m_folder).size(), 5);
}

void TestPictureExport::anotherFolderOrAReason()
{
    enum { FullDisk, ReadOnlyDisk, Packaged, FullDiskAndNoHome };
    for (const int trouble : { FullDisk, ReadOnlyDisk, Packaged, FullDiskAndNoHome }) {
        const QString self = QCoreApplication::applicationFilePath();
        SmallDisk disk(QFileInfo(self).size() + (1 << 20));
        QVERIFY(disk.isMounted());
        QVERIFY(QFile::copy(self, disk.filePath("copy")));
        if (trouble == Packaged)
            QVERIFY(QFile(disk.filePath("packaged")).open(QFile::WriteOnly));
        else if (trouble == ReadOnlyDisk)
            QVERIFY(disk.refuseWrites());
        else
            disk.fill(0);
        const QTemporaryDir folder;
        QFile taken(folder.filePath("Pictures"));
        QVERIFY(trouble != FullDiskAndNoHome || taken.open(QFile::WriteOnly));

        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", folder.path());
        environment.insert("XDG_CONFIG_HOME", folder.filePath("config"));
        process.setProcessEnvironment(environment);
        process.start(disk.filePath("copy"), { kSave });
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        const QStringList answer =
            QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n');
        QVERIFY(pictures(disk.filePath("")).isEmpty());
        const QString problems = QString::fromLocal8Bit(process.readAllStandardError());
        QCOMPARE(problems.contains(CanvasLog::kImageNotSaved), trouble == FullDiskAndNoHome);
        if (trouble == FullDiskAndNoHome) {
            QVERIFY(answer.at(0).isEmpty());
            QVERIFY2(answer.at(1).contains(folder.filePath("Pictures")), qPrintable(answer.at(1)));
        } else {
            QVERIFY2(
                answer.at(0).startsWith(folder.filePath("Pictures/")), qPrintable(answer.at(0)));
            QCOMPARE(QImage(answer.at(0)).pixelColor(100, 75), QColor(Qt::blue));
            QVERIFY(answer.at(1).isEmpty());
        }
    }
}

void TestPictureExport::aNamedFileGetsWhatIsShown()
{
    SmallDisk disk(64 * SmallDisk::kPageBytes);
    QVERIFY(disk.isMounted());
    TestCanvas canvas;
    QVERIFY(!canvas.savePictureTo(disk.filePath("empty.png")));
    QVERIFY(!canvas.saveError().isEmpty());
    draw(canvas);
    const std::pair<const char *, QColor> rows[] = { { "a.png", Qt::transparent },
        { "none", Qt::transparent }, { "a.JPG", Qt::white }, { "a.bmp", Qt::white } };
    for (const auto &[name, ground] : rows) {
        QVERIFY2(canvas.savePictureTo(disk.filePath(name)), qPrintable(canvas.saveError()));
        const QImage saved(disk.filePath(name));
        QCOMPARE(saved.pixelColor(100, 20), ground);
        QCOMPARE(saved.size(), QSize(200, 150));
    }
    const QImage before(disk.filePath("a.png"));
    canvas.clear();
    canvas.line(QPoint(0, 0), QPoint(199, 149));
    disk.fill(0);
    for (const char *name : { "a.png", "b.png", "a.mp4", "missing/a.png" }) {
        QVERIFY2(!canvas.savePictureTo(disk.filePath(name)), name);
        QVERIFY2(canvas.saveError().contains(name), qPrintable(canvas.saveError()));
    }
    QCOMPARE(QImage(disk.filePath("a.png")), before);
    QVERIFY(!QFile::exists(disk.filePath("b.png")));
}

int main(int argc, char *argv[])
{
    SmallDisk::prepare();
    QGuiApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(kSave))
        return saveAndTell();
    TestPictureExport test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_pictureexport.moc"
