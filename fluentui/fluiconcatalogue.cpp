#include "fluentui/fluiconcatalogue.h"

#include "fluentui/fluenticons.h"

#include <QMetaEnum>

QUrl FluIconCatalogue::url(int icon) const
{
    const char *name = QMetaEnum::fromType<FluentIcons::Type>().valueToKey(icon);
    if (!name)
        return {};
    return QUrl(
        QLatin1String("qrc:/qt/qml/FluentUI/icons/") + QLatin1String(name) + QLatin1String(".png"));
}
