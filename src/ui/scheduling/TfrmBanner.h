#pragma once

#include "scheduling/Banners.h"
#include "ui/scheduling/SchedulingDialog.h"

#include <memory>

namespace Ui {
class TfrmBanner;
}

namespace tb {

// The banner dialog: adds a banner at the end (mode 1), inserts one before the first
// selected strip (mode 2) or edits the first selected strip (mode 3). The caller sets
// the mode before it opens the dialog.
class TfrmBanner : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmBanner(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmBanner() override;

    void setMode(BannerMode mode) { m_mode = mode; }
    BannerMode mode() const { return m_mode; }
    // The "Banner" colours of the preferences, for new banners and for banners
    // whose colour field holds no pair.
    void setDefaultColours(const BannerColours &colours) { m_defaults = colours; }
    const BannerColours &defaultColours() const { return m_defaults; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void DayCheckClick();
    void OKButClick();

    std::unique_ptr<Ui::TfrmBanner> ui;
    BannerMode m_mode = BannerAddAtEnd;
    BannerColours m_defaults;
};

} // namespace tb
