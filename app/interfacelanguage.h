#pragma once

#include <QObject>
#include <QTranslator>

#include <array>

/// Follows the language in effect: renews Qt's own texts (dialog buttons, menus of text fields)
/// and tells the windows and the tray when to renew theirs.
class InterfaceLanguage : public QObject
{
    Q_OBJECT

public:
    InterfaceLanguage();
    ~InterfaceLanguage() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Translators were installed or removed, also when a catalogue could not be loaded. Once for
    /// each change of the language, from the event loop.
    void textsChanged();

private:
    void renewSoon();
    void loadTextsOfQt();

    std::array<QTranslator, 2> m_textsOfQt;
    QString m_languageOfQt; ///< empty when no catalogue is in effect
    bool m_loading = false;
    bool m_renewing = false; ///< `textsChanged` is on its way
};
