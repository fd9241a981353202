#include "fluentui/flutextstyle.h"

#include <QGuiApplication>

namespace
{

QFont textFont(int sizePx, QFont::Weight weight = QFont::Normal)
{
    QFont font = QGuiApplication::font();
    font.setStyleHint(QFont::SansSerif);
#ifdef Q_OS_WIN
    font.setFamily(QStringLiteral("Microsoft YaHei"));
#endif
    font.setPixelSize(sizePx);
    font.setWeight(weight);
    font.setCapitalization(QFont::MixedCase); // the style of the controls may say otherwise
    return font;
}

} // namespace

FluTextStyle::FluTextStyle(QObject *parent)
    : QObject(parent), m_caption(textFont(12)), m_body(textFont(13)),
      m_bodyStrong(textFont(13, QFont::DemiBold)), m_bodyLarge(textFont(16, QFont::DemiBold)),
      m_subtitle(textFont(20, QFont::DemiBold)), m_title(textFont(28, QFont::DemiBold))
{
}
