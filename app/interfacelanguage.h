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
    /// Some translator was installed or removed, also when a catalogue could not be loaded.
    void textsChanged();

private:
    void loadTextsOfQt(const QString &language);

    std::array<QTranslator, 2> m_textsOfQt;
};
