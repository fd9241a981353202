#include "recorder/soundmixer.h"

#include <algorithm>
#include <limits>

namespace
{

/// An offset that a viewer could notice between picture and sound: start over at the right time.
constexpr int64_t kLostFrames = SoundMixer::kRate / 40;
/// Less than the estimate's own jitter: leave alone. In between, one frame at a time is dropped,
/// or a gap of one left, until the source is back in step; nobody hears that.
constexpr int64_t kInStepFrames = SoundMixer::kRate / 100;
/// No honest source is this far ahead.
constexpr int64_t kMaxAheadFrames = SoundMixer::kRate * 10;

} // namespace

size_t SoundMixer::addSource()
{
    m_sources.emplace_back();
    return m_sources.size() - 1;
}

void SoundMixer::add(size_t source, int64_t time, std::span<const int16_t> samples)
{
    if (time > m_taken + kMaxAheadFrames)
        return;
    Source &from = m_sources.at(source);
    samples = align(from, time, samples);
    mixIn(*from.next, samples);
    *from.next += static_cast<int64_t>(samples.size()) / kChannels;
}

/// Decides at which time the samples go; may cut one frame off their front.
std::span<const int16_t> SoundMixer::align(
    Source &source, int64_t time, std::span<const int16_t> samples)
{
    const int64_t late = source.next ? time - *source.next : 0;
    if (!source.next || std::abs(late) > kLostFrames) {
        source.next = time;
    } else if (late > kInStepFrames) {
        ++*source.next;
    } else if (late < -kInStepFrames && samples.size() >= kChannels) {
        return samples.subspan(kChannels);
    }
    return samples;
}

void SoundMixer::mixIn(int64_t time, std::span<const int16_t> samples)
{
    const int64_t gone = std::max<int64_t>(m_taken - time, 0) * kChannels;
    if (gone >= static_cast<int64_t>(samples.size()))
        return;
    samples = samples.subspan(static_cast<size_t>(gone));
    const auto start = static_cast<size_t>(std::max<int64_t>(time - m_taken, 0) * kChannels);
    if (m_pending.size() < start + samples.size())
        m_pending.resize(start + samples.size());
    std::transform(samples.begin(), samples.end(),
        m_pending.begin() + static_cast<ptrdiff_t>(start),
        m_pending.begin() + static_cast<ptrdiff_t>(start),
        [](int16_t sample, int32_t sum) { return sum + sample; });
}

QByteArray SoundMixer::takeUntil(int64_t time)
{
    if (time <= m_taken)
        return {};
    const auto count = static_cast<size_t>(time - m_taken) * kChannels;
    m_pending.resize(std::max(m_pending.size(), count));
    std::vector<int16_t> mix(count);
    std::transform(m_pending.begin(), m_pending.begin() + static_cast<ptrdiff_t>(count),
        mix.begin(), [](int32_t sum) {
            return static_cast<int16_t>(std::clamp<int32_t>(
                sum, std::numeric_limits<int16_t>::min(), std::numeric_limits<int16_t>::max()));
        });
    m_pending.erase(m_pending.begin(), m_pending.begin() + static_cast<ptrdiff_t>(count));
    m_taken = time;
    return { reinterpret_cast<const char *>(mix.data()),
        static_cast<qsizetype>(count * sizeof(int16_t)) };
}
