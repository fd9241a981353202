#pragma once

#include "tests/recorder/servers.h"

#include <atomic>
#include <memory>
#include <thread>

/// Flashes a screen and lets a short click sound at the same moments, several times a second, for
/// measuring how far sound and picture of a recording are apart. A flash that this machine is too
/// busy to show in time is left out; a click without a flash says nothing.
class Beacon
{
public:
    /// Who hears the click.
    enum class Ear { Speaker, Microphone };

    Beacon(const XServer &screen, const SoundServer &sound, Ear ear);
    ~Beacon();
    Beacon(const Beacon &) = delete;
    Beacon &operator=(const Beacon &) = delete;

    /// How many there were until now.
    int flashes() const { return m_flashes; }

private:
    void run(const QByteArray &display, const QByteArray &address, const QByteArray &pipe);

    std::atomic<bool> m_stop = false;
    std::atomic<int> m_flashes = 0;
    std::thread m_thread;
};
