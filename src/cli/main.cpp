// torvanbridge-cli: schedule files from the command line, without a display.

#include "CliCommand.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>

#include <cstdio>

#include <unistd.h>

namespace {

using namespace tb::cli;

CommandList allCommands()
{
    CommandList commands;
    AddDocumentCommands(commands);
    AddImportCommands(commands);
    AddSchedulingCommands(commands);
    AddBreakdownCommands(commands);
    AddBoardCommands(commands);
    AddReportCommands(commands);
    return commands;
}

void printHelp(QTextStream &out, const CommandList &commands)
{
    out << FormatHelpText(CliHelpPage(commands));
    out.flush();
}

} // namespace

int main(int argc, char **argv)
{
    // The build makes the manual page and the bash completion with these two; they need
    // no display and no application object.
    if (argc == 2 && (qstrcmp(argv[1], "--help-man") == 0 || qstrcmp(argv[1], "--help-completion") == 0)) {
        QTextStream out(stdout);
        const CommandList commands = allCommands();
        if (qstrcmp(argv[1], "--help-man") == 0)
            out << FormatManPage(CliHelpPage(commands), QStringLiteral(TB_VERSION));
        else
            out << BashCompletion(commands);
        return ExitOk;
    }
    // Fonts and painting work without a display on the offscreen platform.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a desktop session there is no runtime folder; give Qt a private one
    // rather than have it warn on every run.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QByteArray dir = QDir::tempPath().toLocal8Bit() + "/torvanbridge-runtime-" + QByteArray::number(getuid());
        if (QDir().mkpath(QString::fromLocal8Bit(dir))) {
            QFile::setPermissions(QString::fromLocal8Bit(dir),
                                  QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
            qputenv("XDG_RUNTIME_DIR", dir);
        }
    }
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("torvanbridge-cli"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TB_VERSION));

    QTextStream out(stdout);
    QTextStream err(stderr);
    const CommandList commands = allCommands();

    QStringList args = app.arguments().mid(1);
    QStringList rest;
    for (int i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        if (!rest.isEmpty()) { // options after the command name belong to the command
            rest.append(arg);
            continue;
        }
        if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            printHelp(out, commands);
            return ExitOk;
        }
        if (arg == QLatin1String("--version")) {
            out << "torvanbridge-cli " << TB_VERSION << Qt::endl;
            return ExitOk;
        }
        if (arg == QLatin1String("--locale") || arg.startsWith(QLatin1String("--locale="))) {
            QString name;
            if (arg.contains(u'=')) {
                name = arg.section(u'=', 1);
            } else if (i + 1 < args.size()) {
                name = args.at(++i);
            } else {
                err << "torvanbridge-cli: --locale needs a name" << Qt::endl;
                return ExitUsageError;
            }
            QLocale::setDefault(QLocale(name));
            continue;
        }
        if (arg.startsWith(u'-')) {
            err << "torvanbridge-cli: unknown option " << arg << "\nTry torvanbridge-cli --help" << Qt::endl;
            return ExitUsageError;
        }
        rest.append(arg);
    }
    if (rest.isEmpty()) {
        printHelp(err, commands);
        return ExitUsageError;
    }

    const QString name = rest.takeFirst();
    for (const CliCommand &command : commands) {
        if (command.name == name) {
            CliPrompter prompter;
            CliContext ctx{out, err, prompter};
            const int code = command.run(ctx, rest);
            out.flush();
            err.flush();
            return code;
        }
    }
    err << "torvanbridge-cli: unknown command " << name << "\nTry torvanbridge-cli --help" << Qt::endl;
    return ExitUsageError;
}
