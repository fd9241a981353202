#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Lays the sound of several sources on one timeline and hands it out mixed.
///
/// Time is counted in frames (one sample per channel) from the recording's zero. A source that has
/// nothing to say is silence, so the mix never waits for anybody.
class SoundMixer
{
public:
    static constexpr int kRate = 48000;
    static constexpr int kChannels = 2;

    /// Returns the new source's number.
    size_t addSource();

    /// Adds interleaved samples. `time` is when their first frame sounded, as well as the source
    /// can tell; small errors are evened out, as clocks drift and estimates jitter.
    void add(size_t source, int64_t time, std::span<const int16_t> samples);

    /// The mix from where the last call ended up to `time`: interleaved, native byte order.
    QByteArray takeUntil(int64_t time);

private:
    struct Source {
        std::optional<int64_t> next; ///< the time its next frame belongs to
    };

    std::span<const int16_t> align(Source &source, int64_t time, std::span<const int16_t> samples);
    void mixIn(int64_t time, std::span<const int16_t> samples);

    std::vector<Source> m_sources;
    std::vector<int32_t> m_pending; ///< the mix from `m_taken` on
    int64_t m_taken = 0;
};
