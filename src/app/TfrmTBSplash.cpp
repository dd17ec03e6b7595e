#include "app/TfrmTBSplash.h"

#include <QPainter>

namespace tb {

TfrmTBSplash::TfrmTBSplash()
    : QSplashScreen(picture())
{
    setObjectName(QStringLiteral("frmTBSplash"));
}

QPixmap TfrmTBSplash::picture()
{
    const int w = 500;
    const int h = 260;
    QPixmap pixmap(w, h);
    pixmap.fill(QColor(250, 250, 244));
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);

    // A strip of board: day and night strips with a day divider.
    const QColor colours[] = {QColor(255, 255, 255), QColor(255, 244, 150), QColor(160, 200, 255),
                              QColor(170, 220, 170), QColor(20, 20, 20),    QColor(255, 255, 255),
                              QColor(255, 244, 150), QColor(255, 200, 160), QColor(160, 200, 255),
                              QColor(20, 20, 20),    QColor(170, 220, 170), QColor(255, 255, 255)};
    const int stripW = 18;
    int x = w - 12 * stripW - 24;
    for (const QColor &c : colours) {
        p.setPen(QColor(192, 192, 192));
        p.setBrush(c);
        p.drawRect(x, 24, stripW, h - 48);
        x += stripW;
    }
    p.fillRect(QRect(0, 0, w, h).adjusted(0, 0, -(12 * stripW + 24), 0), QColor(250, 250, 244));

    p.setPen(QColor(30, 40, 70));
    QFont title(QStringLiteral("Arial"));
    title.setPixelSize(34);
    title.setBold(true);
    p.setFont(title);
    p.drawText(QRect(20, 70, 240, 50), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Torvanbridge"));
    QFont sub(QStringLiteral("Arial"));
    sub.setPixelSize(14);
    p.setFont(sub);
    p.drawText(QRect(22, 120, 190, 60), Qt::AlignLeft | Qt::TextWordWrap,
               QStringLiteral("Production scheduling\nand stripboards"));
    p.setPen(QColor(120, 120, 120));
    p.drawText(QRect(22, h - 44, 190, 20), Qt::AlignLeft, QStringLiteral("Version ") + QStringLiteral(TB_VERSION));
    p.setPen(QColor(160, 160, 160));
    p.setBrush(Qt::NoBrush);
    p.drawRect(0, 0, w - 1, h - 1);
    return pixmap;
}

} // namespace tb
