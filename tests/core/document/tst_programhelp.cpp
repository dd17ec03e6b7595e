// The help text and the manual page made from one description of a program.

#include "TestSupport.h"

#include "document/ProgramHelp.h"

using namespace tb;
using tb::test::Columns;
using tb::test::Fetch;
using tb::test::Row;

namespace {

HelpPage samplePage(const QString &term, const QString &text)
{
    HelpPage page;
    page.name = "tool";
    page.purpose = "does things";
    page.synopsis = "tool [-v] FILE";
    page.description = "A tool.";
    page.sections.append({"Commands", {}, {{term, text}}});
    return page;
}

} // namespace

class TestProgramHelp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Long lines wrap within 79 columns; a usage line never breaks inside brackets or
    // between an option and its value.
    void helpTextWraps()
    {
        const QString term = "run IN -o OUT --mode keep|split [--from N --to N] [--name NAME] [--colour NAME] "
                             "[--width WIDTH] [--height HEIGHT]";
        const QString text = QString("word ").repeated(40) + "\nsecond line";
        const QString help = FormatHelpText(samplePage(term, text));
        for (const QString &line : help.split(u'\n'))
            QVERIFY2(line.size() <= 79, qPrintable(line));
        QVERIFY(help.startsWith("Usage: tool [-v] FILE\n\nA tool.\n\nCommands:\n  run IN -o OUT"));
        QVERIFY(help.contains("[--from N --to N]"));
        QVERIFY2(help.contains("[--name NAME]\n    [--colour NAME] [--width WIDTH] [--height HEIGHT]\n      word word"),
                 qPrintable(help));
        QVERIFY(help.contains("\n      second line\n"));
    }

    void manPageEscapes_data()
    {
        Columns<QString, QString>("text", "roff");
        Row("options", "use --all", "use \\-\\-all");
        Row("backslash", "C:\\temp", "C:\\etemp");
        Row("leading dot", ".tbf files", "\\&.tbf files");
        Row("leading quote", "'quoted'", "\\&'quoted'");
        Row("second line", "one\n.two", "one\n.br\n\\&.two");
    }
    void manPageEscapes()
    {
        auto [text, roff] = Fetch<QString, QString>("text", "roff");
        qputenv("SOURCE_DATE_EPOCH", "1800000000");
        const QString page = FormatManPage(samplePage("run", text), "1.2");
        QVERIFY(page.startsWith(".TH TOOL 1 \"2027-01-15\" \"Torvanbridge 1.2\" \"User Commands\"\n"
                                ".SH NAME\ntool \\- does things\n.SH SYNOPSIS\n\\fBtool [\\-v] FILE\\fR\n"));
        QVERIFY2(page.contains(".TP\n\\fBrun\\fR\n" + roff + "\n"), qPrintable(page));
    }
};

TB_TEST_GUILESS_MAIN(TestProgramHelp)
#include "tst_programhelp.moc"
