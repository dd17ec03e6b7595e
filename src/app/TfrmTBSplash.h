#pragma once

#include <QSplashScreen>

namespace tb {

// The window shown while the program starts: the name over a few board strips.
class TfrmTBSplash : public QSplashScreen
{
    Q_OBJECT

public:
    TfrmTBSplash();

    static QPixmap picture();
};

} // namespace tb
