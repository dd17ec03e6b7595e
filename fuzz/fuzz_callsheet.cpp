// The call sheet file reader, then the writer's lines and the date reader on whatever it
// read. The sheet has several rows in every grid, as a filled sheet has, so that the
// reader walks grids of more than one row.

#include "FuzzSupport.h"

#include "reports/CallSheetFile.h"

using namespace tb;

namespace {

CallSheet SheetWithRows()
{
    CallSheet sheet;
    for (CallSheetGrid *grid : {&sheet.scenes, &sheet.cast, &sheet.extras, &sheet.crew, &sheet.other})
        grid->rows = QList<QStringList>(4, QStringList(grid->columns));
    return sheet;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const CallSheet empty = SheetWithRows();
    const QString path = fuzz::WriteScratch("in.tbs", data, size);
    CallSheet sheet = empty;
    (void)ReadCallSheetFile(sheet, path);
    (void)CallSheetFileLines(sheet);
    (void)CallSheetFileDate(path);
    return 0;
}
