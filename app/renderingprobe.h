#pragma once

#include "app/rendering.h"
#include "platform/sideprocess.h"

struct OpenGlAnswer;

/// Finds out, before the interface exists, whether OpenGL is accelerated.
///
/// Where it can, it asks in a process of its own: a software implementation brings along a
/// compiler, whose tens of megabytes would stay with this program, and a driver may crash or hang.
/// Either only means rendering without it.
class RenderingProbe
{
public:
    /// Starts asking and makes the first application object, which stays for the rest of the
    /// process beside the main one; `argc` must do so as well. No other thread runs yet.
    RenderingProbe(int &argc, char **argv);

    /// True while another process asks, and this one has time for something else.
    [[nodiscard]] bool asksElsewhere() const { return m_elsewhere != nullptr; }

    /// Waits for the answer and logs it.
    [[nodiscard]] Rendering decide();

private:
    [[nodiscard]] OpenGlAnswer answer();

    std::unique_ptr<SideProcess> m_elsewhere;
};
