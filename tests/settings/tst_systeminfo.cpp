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
    const QStringList parts = systemDescription().split(QLatin1Char('|'));
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    const QStringList expected{
        QStringLiteral("操作系统: .+ .*"),
        QStringLiteral("内核类型: linux"),
        QStringLiteral("内核版本: \\d.*"),
        QStringLiteral("CPU架构: \\w+"),
        QStringLiteral("主机名: .+"),
        QStringLiteral("屏幕数量: 1"),
        QStringLiteral("屏幕 1: %1x%2, \\d+\\.\\d DPI").arg(screen.width()).arg(screen.height()),
        QStringLiteral("总内存: \\d+ MB \\(\\d+\\.\\d\\d GB\\)"),
        QStringLiteral("可用内存: \\d+ MB \\(\\d+\\.\\d\\d GB\\)"),
    };
    QCOMPARE(parts.size(), expected.size());
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(expected.at(i)));
        QVERIFY2(pattern.match(parts.at(i)).hasMatch(), qPrintable(parts.at(i)));
    }
}

void TestSystemInfo::memoryIsRoundedToMebibytesFirst()
{
    const QStringList expected{
        QStringLiteral("总内存: 16234 MB (15.85 GB)"),
        QStringLiteral("可用内存: 0 MB (0.00 GB)"),
    };
    QCOMPARE(memoryDescription({ 17'022'582'784, 1'048'575 }), expected);
}

QTEST_MAIN(TestSystemInfo)
#include "tst_systeminfo.moc"
