#include <QtQml/qqmlextensionplugin.h>

// Compiled into each program: the linker drops a static plugin that nothing refers to.
Q_IMPORT_QML_PLUGIN(FluentUIPlugin)
