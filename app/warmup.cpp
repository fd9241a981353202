#include "app/warmup.h"

#include "app/identity.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

#include <memory>

namespace
{

/// Laying it out finds the fonts.
constexpr char kText[] = "import QtQuick\nText { text: \" \" }";

} // namespace

void warmUpInterface()
{
    QQmlEngine engine;
    engine.addImportPath(QLatin1String(Identity::kQmlModulesInResources));
    // Compiled, never created: that would be the program itself.
    const QQmlComponent palette(&engine, QUrl(QLatin1String(Identity::kRootDocument)));
    QQmlComponent text(&engine);
    text.setData(kText, QUrl());
    const std::unique_ptr<QObject> laidOut(text.create());
}
