#pragma once

#include "app/rendering.h"

#include <QApplication>

/// Finds out, before the interface exists, whether OpenGL is accelerated. Asking needs an
/// application object; the main one is constructed while this one still lives, takes over its
/// connection to the window system and closes it when it ends. Nothing that draws may therefore
/// outlive decide(): a context destroyed after the connection crashes.
class RenderingProbe
{
public:
    RenderingProbe(int &argc, char **argv);

    [[nodiscard]] Rendering decide() const;

private:
    QApplication m_application;
};
