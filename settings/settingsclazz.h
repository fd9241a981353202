#pragma once

#include "settings/screencapture.h"

#include <QObject>
#include <QSettings>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// What the interface calls for settings and desktop services. Every document has its own
/// instance; none keeps settings in memory, so all of them always agree. The work is done by the
/// other files of this folder. The order of the declarations is an interface of its own: new
/// signals and methods go to the end.
class SettingsClazz : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant settingsValue READ settingsValue WRITE setSettingsValue NOTIFY
            settingsChanged FINAL)

public:
    explicit SettingsClazz(QObject *parent = nullptr);

    [[nodiscard]] QVariant settingsValue() const { return m_settingsValue; }
    void setSettingsValue(const QVariant &value);

signals:
    void settingsChanged();

public:
    /// A map of every stored setting, with defaults filled in and stored.
    Q_INVOKABLE QVariant getAllSettings();
    /// False when the store could not be written, see `storeProblem`, or when something in it had
    /// been unreadable; `settingsChanged` is emitted in any case.
    Q_INVOKABLE bool addSetting(const QString &key, const QVariant &value);
    Q_INVOKABLE QString getSettingByKey(const QString &key);
    Q_INVOKABLE bool removeSetting(const QString &key);

    /// `captureResult` tells the outcome of either.
    Q_INVOKABLE void captureScreen();
    /// In logical pixels of the primary screen.
    Q_INVOKABLE void captureScreen(int x, int y, int width, int height);
    /// Stores the directory that the user chose, see `storeProblem`; empty when cancelled.
    Q_INVOKABLE QString selectSaveDirectory(const QString &currentPath = QString());

    Q_INVOKABLE void restartApplication();

    Q_INVOKABLE QVariant getIniValue(const QString &group, const QString &key);
    Q_INVOKABLE void setIniValue(const QString &group, const QString &key, const QString &value);

    /// `data` is base64 text or a data URL; `fileName` is relative to the executable's directory.
    Q_INVOKABLE bool saveFile(const QByteArray &data, const QString &fileName);
    Q_INVOKABLE void startExeAndExitApp(const QString &exeName);
    Q_INVOKABLE void copyToClipboard(const QString &text);

    Q_INVOKABLE bool setLanguage(const QString &language);
    Q_INVOKABLE QString getCurrentLanguage();
    Q_INVOKABLE QString getCurrentLanguageName();
    Q_INVOKABLE QString getTranslation(const QString &text);
    Q_INVOKABLE QVariantList getAvailableLanguages();
    Q_INVOKABLE bool reloadTranslations();

    Q_INVOKABLE QString getSysInfo();

    /// The latest capture by this object: "path" of the saved picture (empty when none was) and
    /// "message" for the user when something failed. A method and not a signal, since a signal
    /// would move every method of the table.
    Q_INVOKABLE QVariantMap captureResult() const;

    /// The whole primary screen into this file; `captureResult` tells the outcome.
    Q_INVOKABLE void captureScreenTo(const QString &path);

    /// The folder for recordings: the one for captures, unless nobody chose that.
    Q_INVOKABLE QString recordingFolder();
    /// What to tell the user when this object's latest change could not be stored; empty when it
    /// was.
    Q_INVOKABLE QString storeProblem() const;

private:
    bool changed(QSettings::Status status);

    QString m_storeProblem;
    ScreenCapture::Outcome m_captureOutcome;
    QVariant m_settingsValue;
};
