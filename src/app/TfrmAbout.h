#pragma once

#include "ui/shell/DialogWithHelp.h"

#include <memory>

namespace Ui {
class TfrmAbout;
}

namespace tb {

// "About...": the product's name, version and what it is for.
class TfrmAbout : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmAbout(QWidget *parent = nullptr);
    ~TfrmAbout() override;

    Ui::TfrmAbout &form() { return *m_ui; }

private:
    std::unique_ptr<Ui::TfrmAbout> m_ui;
};

} // namespace tb
