#include "settings/screencapture.h"

#include "tests/platform/smalldisk.h"
#include "tests/settings/throwawaystore.h"

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QSignalSpy>

#include <limits>

namespace
{

/// Fills the screen with four colours whose borders meet at (101, 51).
class Pattern : public QRasterWindow
{
public:
    static constexpr QPoint kMeetingPoint{ 101, 51 };

private:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(0, 0, 101, 51, Qt::red);
        painter.fillRect(101, 0, width(), 51, Qt::green);
        painter.fillRect(0, 51, 101, height(), Qt::blue);
        painter.fillRect(101, 51, width(), height(), Qt::yellow);
    }
};

bool looksLike(const QColor &actual, const QColor &expected)
{
    constexpr int kJpegTolerance = 40;
    return std::abs(actual.red() - expected.red()) < kJpegTolerance
        && std::abs(actual.green() - expected.green()) < kJpegTolerance
        && std::abs(actual.blue() - expected.blue()) < kJpegTolerance;
}

} // namespace

class TestScreenCapture : public QObject
{
    Q_OBJECT

public:
    static void initMain()
    {
        ThrowawayStore::use();
        SmallDisk::prepare();
    }

private slots:
    void init();
    void impossibleRegionsAreRefused();
    void aRegionHoldsThePixelsUnderIt();
    void theWholeScreenLeavesTheClipboardAlone();
    void aFolderThatCannotBeCreatedIsTold();
    void aFailedSaveStillFillsTheClipboard();
    void aNamedFileIsWrittenWholeOrNotAtAll();

private:
    void savePicturesIn(const QString &folder);

    QTemporaryDir m_folder;
};

void TestScreenCapture::init()
{
    ThrowawayStore::clear();
    savePicturesIn(m_folder.path());
    QGuiApplication::clipboard()->clear();
}

void TestScreenCapture::savePicturesIn(const QString &folder)
{
    ThrowawayStore::Store().setValue(QLatin1String(SettingsKeys::kScreenSavePath), folder);
}

void TestScreenCapture::impossibleRegionsAreRefused()
{
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    constexpr int kMost = std::numeric_limits<int>::max();
    const std::pair<QPoint, QSize> regions[] = { { { 0, 0 }, { 0, 10 } }, { { 0, 0 }, { 10, -1 } },
        { { -1, 0 }, { 10, 10 } }, { { 0, -1 }, { 10, 10 } }, { { 1, 0 }, screen },
        { { 0, 1 }, screen }, { { kMost, 0 }, { 10, 10 } }, { { 10, 0 }, { kMost, 10 } },
        { { 0, kMost }, { kMost, kMost } } };
    for (const auto &[topLeft, size] : regions) {
        const QString warning = size.isEmpty()
            ? QStringLiteral("无效的宽度或高度： %1 %2").arg(size.width()).arg(size.height())
            : QStringLiteral("指定的区域超出屏幕范围： %1 %2 %3 %4")
                  .arg(topLeft.x())
                  .arg(topLeft.y())
                  .arg(size.width())
                  .arg(size.height());
        QTest::ignoreMessage(QtWarningMsg, warning.toUtf8().constData());
        const ScreenCapture::Outcome outcome = ScreenCapture::captureRegion(topLeft, size);
        QVERIFY(outcome.savedPath.isEmpty());
        QVERIFY(!outcome.failure.isEmpty());
        QVERIFY(QGuiApplication::clipboard()->image().isNull());
    }
}

void TestScreenCapture::aRegionHoldsThePixelsUnderIt()
{
    Pattern pattern;
    pattern.setFlag(Qt::FramelessWindowHint);
    pattern.setGeometry(pattern.screen()->geometry());
    pattern.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pattern));
    QCoreApplication::processEvents();

    const QSize screen = pattern.screen()->geometry().size();
    const QRect region(QPoint(61, 31), QPoint(screen.width() - 1, screen.height() - 1));
    const QDateTime before = QDateTime::currentDateTime();
    const ScreenCapture::Outcome outcome =
        ScreenCapture::captureRegion(region.topLeft(), region.size());
    QVERIFY2(outcome.failure.isEmpty(), qPrintable(outcome.failure));

    const QFileInfo file(outcome.savedPath);
    QCOMPARE(file.path(), m_folder.path());
    const QDateTime stamp = QDateTime::fromString(file.fileName(), "'draw_'yyyyMMdd_hhmmss'.jpg'");
    QVERIFY(before.secsTo(stamp) >= -1 && stamp.secsTo(QDateTime::currentDateTime()) <= 5);

    const QImage saved(outcome.savedPath);
    const double ratio = pattern.devicePixelRatio();
    QCOMPARE(saved.size(), (QSizeF(region.size()) * ratio).toSize());
    const QPoint meeting = ((QPointF(Pattern::kMeetingPoint) - region.topLeft()) * ratio).toPoint();
    constexpr int kBesideTheBorder = 12;
    const auto near = [&](int x, int y) {
        return saved.pixelColor(meeting + QPoint(x, y) * kBesideTheBorder);
    };
    QVERIFY(looksLike(near(-1, -1), Qt::red));
    QVERIFY(looksLike(near(1, -1), Qt::green));
    QVERIFY(looksLike(near(-1, 1), Qt::blue));
    QVERIFY(looksLike(near(1, 1), Qt::yellow));

    const QImage pasted = QGuiApplication::clipboard()->image();
    QCOMPARE(pasted.size(), saved.size());
    QCOMPARE(pasted.pixelColor(meeting - QPoint(1, 1)), QColor(Qt::red));
    QCOMPARE(pasted.pixelColor(meeting), QColor(Qt::yellow));
}

void TestScreenCapture::theWholeScreenLeavesTheClipboardAlone()
{
    const QString folder = m_folder.filePath("新 folder/inner");
    savePicturesIn(folder);
    QGuiApplication::clipboard()->setText("kept");
    const ScreenCapture::Outcome outcome = ScreenCapture::captureWholeScreen();
    const QScreen *screen = QGuiApplication::primaryScreen();
    QCOMPARE(
        QImage(outcome.savedPath).size(), screen->geometry().size() * screen->devicePixelRatio());
    QCOMPARE(QGuiApplication::clipboard()->text(), "kept");
    QCOMPARE(QFileInfo(outcome.savedPath).path(), folder); // which was made for it
}

void TestScreenCapture::aFolderThatCannotBeCreatedIsTold()
{
    savePicturesIn("/proc/pictures");
    QTest::ignoreMessage(QtWarningMsg, "无法创建截图保存目录： \"/proc/pictures\"");
    const ScreenCapture::Outcome outcome = ScreenCapture::captureRegion({ 0, 0 }, { 10, 10 });
    QVERIFY(outcome.failure.contains("/proc/pictures"));
    QVERIFY(QGuiApplication::clipboard()->image().isNull());
}

void TestScreenCapture::aFailedSaveStillFillsTheClipboard()
{
    savePicturesIn("/proc");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^截图保存失败： \"/proc/draw_.*jpg\"$"));
    const ScreenCapture::Outcome outcome = ScreenCapture::captureRegion({ 0, 0 }, { 10, 10 });
    QVERIFY(outcome.savedPath.isEmpty());
    QVERIFY(outcome.failure.contains("/proc"));
    QVERIFY(!QGuiApplication::clipboard()->image().isNull());
}

void TestScreenCapture::aNamedFileIsWrittenWholeOrNotAtAll()
{
    SmallDisk disk(1 << 20);
    QVERIFY(disk.isMounted());
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QString path = disk.filePath("screen.png");
    QCOMPARE(ScreenCapture::captureWholeScreenTo(path).failure, QString());
    QImageReader reader(path);
    QCOMPARE(reader.format(), QByteArray("png"));
    const QImage picture = reader.read();
    QCOMPARE(picture.size(), screen->geometry().size() * screen->devicePixelRatio());

    disk.fill(0);
    for (const QString &other : { path, disk.filePath("other.jpg"), disk.filePath("film.mp4") }) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^截图保存失败： "));
        const ScreenCapture::Outcome outcome = ScreenCapture::captureWholeScreenTo(other);
        QVERIFY2(outcome.failure.contains(other), qPrintable(outcome.failure));
        QVERIFY(outcome.savedPath.isEmpty());
    }
    QCOMPARE(QImage(path), picture);
    QCOMPARE(
        QDir(disk.filePath("")).entryList(QDir::Files), QStringList({ "filler", "screen.png" }));
}

QTEST_MAIN(TestScreenCapture)
#include "tst_screencapture.moc"
