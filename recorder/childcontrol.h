#pragma once

class QProcess;

/// What a child process that must not outlive this one needs from the operating system.
namespace ChildControl
{

/// Before the start: should this process die, even without a chance to say so, the child ends too.
void prepare(QProcess *child);
/// After the start.
void adopt(QProcess *child);
/// Asks FFmpeg to finish its file; its standard input ends. Asked twice it would drop what it has
/// not written yet.
void requestEnd(QProcess *child);

} // namespace ChildControl
