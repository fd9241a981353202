#pragma once

#include <QByteArray>
#include <QString>

/// How the program renders, decided once per start.
enum class Rendering { Hardware, Software };

/// True for the renderer names of the software implementations of OpenGL, in any case.
[[nodiscard]] bool isSoftwareRenderer(const QByteArray &rendererName);

/// Sets environment, application attributes and the scene graph for the decision. The probe
/// application exists already; the main one does not.
void applyRendering(Rendering rendering);

/// The decision as the deployment file notes it.
[[nodiscard]] QString iniValue(Rendering rendering);
