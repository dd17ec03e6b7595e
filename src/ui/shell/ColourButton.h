#pragma once

#include <QString>
#include <QToolButton>

class QMenu;

namespace tb {

// A button showing a colour, with a drop-down of the sixteen named colours and an
// "&Other" entry that opens the system colour dialog. The colour is kept as the
// colour name the schedule stores ("clYellow", "$00C0FFEE"), so a name that came
// from the schedule is written back unchanged unless the user picks another colour.
class ColourButton : public QToolButton
{
    Q_OBJECT

public:
    explicit ColourButton(QWidget *parent = nullptr);

    const QString &colourName() const { return m_name; }
    void setColourName(const QString &name);

    // The palette's entries: the sixteen names, then "&Other".
    QMenu *palette() const { return m_menu; }

Q_SIGNALS:
    void colourChanged(const QString &name);

private:
    void pickOther();
    void choose(const QString &name);

    QMenu *m_menu;
    QString m_name;
};

} // namespace tb
