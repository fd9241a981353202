#include "settings/settingsclazz.h"

#include "settings/deployment.h"
#include "settings/directorychoice.h"
#include "settings/fileoutput.h"
#include "settings/languagecatalogues.h"
#include "settings/logtexts.h"
#include "settings/places.h"
#include "settings/processservices.h"
#include "settings/settingskeys.h"
#include "settings/settingsstore.h"
#include "settings/systeminfo.h"
#include "settings/translation.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDebug>
#include <QGuiApplication>

SettingsClazz::SettingsClazz(QObject *parent) : QObject(parent)
{
    qDebug() << LogTexts::kSettingsCreated;
}

void SettingsClazz::setSettingsValue(const QVariant &value)
{
    if (m_settingsValue == value) {
        return;
    }
    m_settingsValue = value;
    emit settingsChanged();
}

QVariant SettingsClazz::getAllSettings()
{
    return SettingsStore::loadAll();
}

bool SettingsClazz::addSetting(const QString &key, const QVariant &value)
{
    return changed(SettingsStore::write(key, value));
}

bool SettingsClazz::changed(QSettings::Status status)
{
    m_storeProblem = status == QSettings::AccessError
        ? tr("无法写入 %1，请检查磁盘空间和文件夹的权限").arg(SettingsStore::path())
        : QString();
    emit settingsChanged();
    return status == QSettings::NoError;
}

QString SettingsClazz::storeProblem() const
{
    return m_storeProblem;
}

QString SettingsClazz::recordingFolder()
{
    return Places::recordings(getSettingByKey(QLatin1String(SettingsKeys::kScreenSavePath)));
}

QString SettingsClazz::getSettingByKey(const QString &key)
{
    return SettingsStore::read(key).toString();
}

bool SettingsClazz::removeSetting(const QString &key)
{
    return changed(SettingsStore::remove(key));
}

void SettingsClazz::captureScreen()
{
    m_captureOutcome = ScreenCapture::captureWholeScreen();
}

void SettingsClazz::captureScreen(int x, int y, int width, int height)
{
    m_captureOutcome = ScreenCapture::captureRegion({ x, y }, { width, height });
}

void SettingsClazz::captureScreenTo(const QString &path)
{
    m_captureOutcome = ScreenCapture::captureWholeScreenTo(path);
}

QVariantMap SettingsClazz::captureResult() const
{
    return {
        { QStringLiteral("path"), m_captureOutcome.savedPath },
        { QStringLiteral("message"), m_captureOutcome.failure },
    };
}

QString SettingsClazz::selectSaveDirectory(const QString &currentPath)
{
    const std::optional<QString> directory = chooseDirectory(currentPath);
    if (!directory) {
        return {};
    }
    if (directory->isEmpty()) {
        qDebug() << LogTexts::kDirectoryCancelled;
    } else {
        addSetting(QLatin1String(SettingsKeys::kScreenSavePath), *directory);
        qDebug() << LogTexts::kDirectoryChosen << *directory;
    }
    return *directory;
}

void SettingsClazz::restartApplication()
{
    ProcessServices::restartApplication();
}

QVariant SettingsClazz::getIniValue(const QString &group, const QString &key)
{
    return Deployment::value(group, key);
}

void SettingsClazz::setIniValue(const QString &group, const QString &key, const QString &value)
{
    Deployment::setValue(group, key, value);
}

bool SettingsClazz::saveFile(const QByteArray &data, const QString &fileName)
{
    return FileOutput::saveBesideExecutable(data, fileName);
}

void SettingsClazz::startExeAndExitApp(const QString &exeName)
{
    ProcessServices::startAndQuit(exeName);
}

void SettingsClazz::copyToClipboard(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

bool SettingsClazz::setLanguage(const QString &language)
{
    addSetting(QLatin1String(SettingsKeys::kAppLanguage), language);
    if (!m_storeProblem.isEmpty() || !applyLanguage(language)) {
        return false;
    }
    emit settingsChanged();
    return true;
}

QString SettingsClazz::getCurrentLanguage()
{
    const QVariant stored = SettingsStore::read(QLatin1String(SettingsKeys::kAppLanguage));
    return stored.isValid() ? stored.toString() : QLatin1String(SettingsKeys::kDefaultLanguage);
}

QString SettingsClazz::getCurrentLanguageName()
{
    return LanguageCatalogues::displayName(getCurrentLanguage());
}

QString SettingsClazz::getTranslation(const QString &text)
{
    return QCoreApplication::translate("main", text.toUtf8().constData());
}

QVariantList SettingsClazz::getAvailableLanguages()
{
    return LanguageCatalogues::available();
}

bool SettingsClazz::reloadTranslations()
{
    return applyLanguage(getCurrentLanguage());
}

QString SettingsClazz::getSysInfo()
{
    return systemDescription();
}
