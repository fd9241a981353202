#include "canvas/logtexts.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/testcanvas.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace
{

const QString kLostFolder = QStringLiteral("--from-a-lost-folder");

QStringList pictures(const QString &folder)
{
    return QDir(folder).entryList({ "screenshot_*.png" });
}

void draw(TestCanvas &canvas)
{
    canvas.setPenColor(Qt::blue);
    canvas.line(QPoint(10, 75), QPoint(190, 75));
}

/// Saves a picture after the program's own folder has become a file, in which nobody can write,
/// and prints the path and the error.
int saveFromLostFolder()
{
    const QString folder = QCoreApplication::applicationDirPath();
    QDir(folder).removeRecursively();
    QFile file(folder);
    if (!file.open(QFile::WriteOnly))
        return 1;
    TestCanvas canvas;
    draw(canvas);
    canvas.renderToImage();
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
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("home"));
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QFile::WriteOnly));
    for (const char *home : { "home", "file" }) {
        QFile::remove(folder.filePath("program")); // what became of it the time before
        QVERIFY(QDir(folder.path()).mkpath("program"));
        const QString program = folder.filePath("program/copy");
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));

        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", folder.filePath(home));
        environment.insert("XDG_CONFIG_HOME", folder.filePath("config"));
        process.setProcessEnvironment(environment);
        process.start(program, { kLostFolder });
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        const QStringList answer =
            QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n');
        const QString problems = QString::fromLocal8Bit(process.readAllStandardError());
        QVERIFY2(problems.contains(CanvasLog::kImageNotSaved), qPrintable(problems));
        if (home == QByteArray("home")) {
            QVERIFY2(answer.at(0).startsWith(folder.filePath("home/")), qPrintable(answer.at(0)));
            QCOMPARE(QImage(answer.at(0)).pixelColor(100, 75), QColor(Qt::blue));
            QVERIFY(answer.at(1).isEmpty());
        } else {
            QVERIFY(answer.at(0).isEmpty());
            QVERIFY2(answer.at(1).contains(folder.filePath("file")), qPrintable(answer.at(1)));
        }
    }
}

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(kLostFolder))
        return saveFromLostFolder();
    TestPictureExport test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_pictureexport.moc"
