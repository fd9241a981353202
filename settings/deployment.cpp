#include "settings/deployment.h"

#include "settings/inifile.h"
#include "settings/places.h"

QString Deployment::value(const QString &group, const QString &key)
{
    for (const QString &path : Places::deploymentFiles()) {
        if (const std::optional<QString> value = IniFile(path).value(group, key)) {
            return *value;
        }
    }
    return {};
}

void Deployment::setValue(const QString &group, const QString &key, const QString &value)
{
    const QString path = Places::writtenDeploymentFile();
    if (!path.isEmpty()) {
        IniFile(path).setValue(group, key, value);
    }
}
