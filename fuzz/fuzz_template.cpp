// Report templates: the form-file parser, the report loader, and the layout of what
// loads, with a few values in every field.

#include "FuzzSupport.h"

#include "document/LegacyText.h"
#include "reports/AlLayout.h"
#include "reports/AlReport.h"
#include "reports/DfmParser.h"

using namespace tb;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const ResultOf<DfmObject> root = ParseDfmText(legacy::DecodeFileText(bytes), QStringLiteral("fuzz.dfm"));
    if (!root)
        return 0;
    ResultOf<std::unique_ptr<ReportForm>> form = BuildReportForm(*root, QStringLiteral("fuzz.dfm"));
    // A template without a report is refused by the loader before any layout.
    if (!form || !form.value()->report)
        return 0;
    TAlReport &report = *form.value()->report;
    for (TAlField *field : form.value()->fields()) {
        for (int i = 0; i < 3; ++i)
            report.AddFieldValue(*field, QStringLiteral("value %1 of a longer text that may wrap").arg(i));
    }
    (void)LayOutReport(report, LayoutPage{2480, 3508});
    return 0;
}
