#include "settings/systeminfo.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

class TestSystemInfo : public QObject
{
    Q_OBJECT

private slots:
    void theDescriptionHasItsPartsInOrder();
    void memoryIsRoundedToMebibytesFirst();
};

void TestSystemInfo::theDescriptionHasItsPartsInOrder()
{
    const QStringList parts = systemDescription().split('|');
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    const QStringList expected{ "操作系统: .+ .*", "内核类型: linux", "内核版本: \\d.*",
        "CPU架构: \\w+", "主机名: .+", "屏幕数量: 1",
        QStringLiteral("屏幕 1: %1x%2, \\d+\\.\\d DPI").arg(screen.width()).arg(screen.height()),
        "总内存: \\d+ MB \\(\\d+\\.\\d\\d GB\\)", "可用内存: \\d+ MB \\(\\d+\\.\\d\\d GB\\)" };
    QCOMPARE(parts.size(), expected.size());
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(expected.at(i)));
        QVERIFY2(pattern.match(parts.at(i)).hasMatch(), qPrintable(parts.at(i)));
    }
}

void TestSystemInfo::memoryIsRoundedToMebibytesFirst()
{
    const QStringList expected{
        "总内存: 16234 MB (15.85 GB)",
        "可用内存: 0 MB (0.00 GB)",
    };
    QCOMPARE(memoryDescription({ 17'022'582'784, 1'048'575 }), expected);
}

QTEST_MAIN(TestSystemInfo)
#include "tst_systeminfo.moc"
