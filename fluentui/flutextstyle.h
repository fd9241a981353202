#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The fonts of all controls; sizes in pixels.
class FluTextStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QFont Caption MEMBER m_caption CONSTANT FINAL)
    Q_PROPERTY(QFont Body MEMBER m_body CONSTANT FINAL)
    Q_PROPERTY(QFont BodyStrong MEMBER m_bodyStrong CONSTANT FINAL)
    Q_PROPERTY(QFont BodyLarge MEMBER m_bodyLarge CONSTANT FINAL)
    Q_PROPERTY(QFont Subtitle MEMBER m_subtitle CONSTANT FINAL)
    Q_PROPERTY(QFont Title MEMBER m_title CONSTANT FINAL)

public:
    explicit FluTextStyle(QObject *parent = nullptr);

private:
    QFont m_caption;
    QFont m_body;
    QFont m_bodyStrong;
    QFont m_bodyLarge;
    QFont m_subtitle;
    QFont m_title;
};
