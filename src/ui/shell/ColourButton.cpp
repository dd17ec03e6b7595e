#include "ui/shell/ColourButton.h"

#include "document/LegacyText.h"

#include <QColorDialog>
#include <QMenu>
#include <QPainter>
#include <QPixmap>

namespace tb {

namespace {

const char *const NamedColours[] = {"clBlack", "clMaroon",  "clGreen",  "clOlive", "clNavy", "clPurple",
                                    "clTeal",  "clGray",    "clSilver", "clRed",   "clLime", "clYellow",
                                    "clBlue",  "clFuchsia", "clAqua",   "clWhite"};

QIcon swatch(const QColor &colour, int size)
{
    QPixmap pixmap(size * 2, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QColor(Qt::darkGray));
    painter.setBrush(colour.isValid() ? colour : QColor(Qt::white));
    painter.drawRect(0, 0, pixmap.width() - 1, pixmap.height() - 1);
    return QIcon(pixmap);
}

// "clYellow" is shown as "Yellow"; other colours by their stored text.
QString displayName(const QString &name)
{
    return name.startsWith(QLatin1String("cl")) ? name.mid(2) : name;
}

} // namespace

ColourButton::ColourButton(QWidget *parent)
    : QToolButton(parent)
    , m_menu(new QMenu(this))
{
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setMinimumWidth(150);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const int size = fontMetrics().height() - 2;
    setIconSize(QSize(size * 2, size));
    for (const char *name : NamedColours) {
        const QString colourName = QString::fromLatin1(name);
        QAction *action = m_menu->addAction(swatch(legacy::StringToColor(colourName), size), displayName(colourName));
        action->setData(colourName);
        connect(action, &QAction::triggered, this, [this, colourName] { choose(colourName); });
    }
    m_menu->addSeparator();
    QAction *other = m_menu->addAction(tr("&Other"));
    connect(other, &QAction::triggered, this, &ColourButton::pickOther);
    setMenu(m_menu);
    setColourName(QStringLiteral("clWhite"));
}

void ColourButton::setColourName(const QString &name)
{
    m_name = name;
    const int size = fontMetrics().height() - 2;
    setIcon(swatch(legacy::StringToColor(name), size));
    setText(displayName(name));
}

void ColourButton::choose(const QString &name)
{
    setColourName(name);
    Q_EMIT colourChanged(name);
}

void ColourButton::pickOther()
{
    const QColor colour = QColorDialog::getColor(legacy::StringToColor(m_name), this);
    if (colour.isValid())
        choose(legacy::ColorToString(colour));
}

} // namespace tb
