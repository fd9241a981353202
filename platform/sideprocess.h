#pragma once

#include <QByteArray>

#include <functional>
#include <memory>
#include <optional>

/// Work in a process of its own that hands back some bytes: whatever it loads, leaks or crashes on
/// stays out of this program.
class SideProcess
{
public:
    /// Starts `work` on a copy of this process, which must have no second thread and no application
    /// object yet. What the copy logs is dropped. Null where processes cannot be copied.
    [[nodiscard]] static std::unique_ptr<SideProcess> start(
        const std::function<QByteArray()> &work);

    SideProcess() = default;
    Q_DISABLE_COPY_MOVE(SideProcess)
    /// Ends the process if it still runs.
    virtual ~SideProcess() = default;

    /// Waits for the end of the work. Nothing if it crashed or took longer than `timeoutMs`.
    [[nodiscard]] virtual std::optional<QByteArray> result(int timeoutMs) = 0;
};
