#include "recorder/soundmixer.h"

#include <QTest>

#include <cstring>
#include <vector>

namespace
{

constexpr int64_t kSecond = SoundMixer::kRate;

/// `count` frames of one level on both channels.
std::vector<int16_t> level(int16_t value, int64_t count)
{
    return std::vector<int16_t>(static_cast<size_t>(count) * SoundMixer::kChannels, value);
}

/// The left channel of what the mixer handed out.
std::vector<int16_t> left(const QByteArray &bytes)
{
    std::vector<int16_t> all(static_cast<size_t>(bytes.size()) / sizeof(int16_t));
    std::memcpy(all.data(), bytes.constData(), static_cast<size_t>(bytes.size()));
    std::vector<int16_t> channel;
    for (size_t i = 0; i < all.size(); i += SoundMixer::kChannels)
        channel.push_back(all[i]);
    return channel;
}

} // namespace

class TestSoundMixer : public QObject
{
    Q_OBJECT

private slots:
    void silenceWithoutSources();
    void placesSoundOnTheTimeline();
    void addsSourcesAndLimitsTheSum();
    void dropsWhatComesTooLate();
    void survivesJitter();
    void followsADriftingClock_data();
    void followsADriftingClock();
    void startsOverAfterAGap();
    void refusesAbsurdTimes();
};

void TestSoundMixer::silenceWithoutSources()
{
    SoundMixer mixer;
    QVERIFY(mixer.takeUntil(-10).isEmpty());
    QCOMPARE(left(mixer.takeUntil(5)), std::vector<int16_t>(5, 0));
    QVERIFY(mixer.takeUntil(5).isEmpty());
    QCOMPARE(left(mixer.takeUntil(7)).size(), 2U);
}

void TestSoundMixer::placesSoundOnTheTimeline()
{
    SoundMixer mixer;
    const size_t source = mixer.addSource();
    mixer.add(source, 2, level(100, 2));
    mixer.add(source, 4, level(200, 1));
    QCOMPARE(left(mixer.takeUntil(3)), (std::vector<int16_t>{ 0, 0, 100 }));
    QCOMPARE(left(mixer.takeUntil(6)), (std::vector<int16_t>{ 100, 200, 0 }));
}

void TestSoundMixer::addsSourcesAndLimitsTheSum()
{
    SoundMixer mixer;
    const size_t one = mixer.addSource();
    const size_t two = mixer.addSource();
    mixer.add(one, 0, level(30000, 2));
    mixer.add(two, 1, level(10000, 2));
    QCOMPARE(left(mixer.takeUntil(3)), (std::vector<int16_t>{ 30000, 32767, 10000 }));
    mixer.add(one, 2, level(-30000, 2)); // the first half is too late
    mixer.add(two, 3, level(-10000, 1));
    QCOMPARE(left(mixer.takeUntil(4)), (std::vector<int16_t>{ -32768 }));
}

void TestSoundMixer::dropsWhatComesTooLate()
{
    SoundMixer mixer;
    const size_t source = mixer.addSource();
    mixer.takeUntil(10);
    mixer.add(source, 8, level(7, 4));
    QCOMPARE(left(mixer.takeUntil(13)), (std::vector<int16_t>{ 7, 7, 0 }));
    mixer.add(source, 12, level(7, 1));
    QVERIFY(mixer.takeUntil(13).isEmpty());
}

void TestSoundMixer::survivesJitter()
{
    SoundMixer mixer;
    const size_t source = mixer.addSource();
    for (int64_t i = 0; i < 50; ++i) {
        const int64_t jitter = (i % 3 - 1) * kSecond / 200;
        mixer.add(source, kSecond + i * 960 + jitter, level(5, 960));
    }
    mixer.takeUntil(kSecond - kSecond / 100);
    const std::vector<int16_t> heard = left(mixer.takeUntil(2 * kSecond - kSecond / 100));
    const auto sounding = std::count(heard.begin(), heard.end(), 5);
    const auto first = std::find(heard.begin(), heard.end(), 5) - heard.begin();
    QCOMPARE(sounding + first, static_cast<qsizetype>(heard.size()));
}

void TestSoundMixer::followsADriftingClock_data()
{
    QTest::addColumn<int>("framesPerChunk");
    QTest::newRow("slow clock") << 959;
    QTest::newRow("fast clock") << 961;
}

void TestSoundMixer::followsADriftingClock()
{
    // Chunks come every 20 ms, but hold a frame less or more than 20 ms of sound: a thousand times
    // worse than real clocks. The source stays within a fiftieth of a second of the truth.
    QFETCH(int, framesPerChunk);
    SoundMixer mixer;
    const size_t source = mixer.addSource();
    for (int64_t i = 0; i < 3000; ++i) {
        mixer.add(source, i * 960, level(i == 2999 ? 9 : 5, framesPerChunk));
        if (i < 2990)
            mixer.takeUntil(i * 960);
    }
    mixer.takeUntil(2989 * 960);
    const std::vector<int16_t> heard = left(mixer.takeUntil(3003 * 960));
    const auto start = std::find(heard.begin(), heard.end(), 9) - heard.begin() + 2989 * 960;
    QVERIFY2(std::abs(start - 2999 * 960) < kSecond / 50, qPrintable(QString::number(start)));
}

void TestSoundMixer::startsOverAfterAGap()
{
    SoundMixer mixer;
    const size_t source = mixer.addSource();
    mixer.add(source, 0, level(1, 100));
    mixer.add(source, kSecond, level(2, 100));
    const std::vector<int16_t> heard = left(mixer.takeUntil(2 * kSecond));
    QCOMPARE(heard.at(99), 1);
    QCOMPARE(heard.at(100), 0);
    QCOMPARE(heard.at(kSecond - 1), 0);
    QCOMPARE(heard.at(kSecond), 2);
}

void TestSoundMixer::refusesAbsurdTimes()
{
    SoundMixer mixer;
    const size_t source = mixer.addSource();
    mixer.add(source, kSecond * 3600, level(1, 100));
    mixer.add(source, 0, level(3, 1));
    QCOMPARE(left(mixer.takeUntil(1)), (std::vector<int16_t>{ 3 }));
}

QTEST_GUILESS_MAIN(TestSoundMixer)
#include "tst_soundmixer.moc"
