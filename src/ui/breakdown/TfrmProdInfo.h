#pragma once

#include "ui/shell/DialogWithHelp.h"
#include <QImage>

#include <memory>

namespace Ui {
class TfrmProdInfo;
}

namespace tb {

class ScheduleDocument;

// "Production details": titles, names, address, logo, default call times and crew.
class TfrmProdInfo : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmProdInfo(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmProdInfo() override;

    static const QString HelpPage;

    // The logo file the picture dialog holds; OK stores it whether or not the picture
    // could be loaded.
    QString logoFile() const { return m_logoFile; }
    // What Logo... does once a file is chosen.
    void loadChosenLogo(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void FormShow();
    void OKButClick();
    void CancelbutClick();
    void LogoButClick();
    void showLogo(const QImage &image);

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmProdInfo> m_ui;
    QString m_logoFile;
    QImage m_logo;
};

} // namespace tb
