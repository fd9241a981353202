#pragma once

#include <QByteArray>

#include <optional>

/// What OpenGL says about itself when a context is current.
struct OpenGlAnswer {
    struct Names {
        QByteArray renderer;
        QByteArray version;
    };

    bool contextWorks = false;
    /// Nothing if the context knows no functions to ask with.
    std::optional<Names> names;

    [[nodiscard]] QByteArray toBytes() const;
    [[nodiscard]] static OpenGlAnswer fromBytes(const QByteArray &bytes);
};

/// Makes a context and asks it; needs an application object.
[[nodiscard]] OpenGlAnswer askOpenGl();
