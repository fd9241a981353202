#pragma once

#include <QtGlobal>

#include <optional>

/// Physical memory of the machine, in bytes.
struct SystemMemory {
    quint64 totalBytes = 0;
    quint64 availableBytes = 0;

    /// What the operating system reports now, or nothing when it cannot be asked.
    [[nodiscard]] static std::optional<SystemMemory> query();
};
