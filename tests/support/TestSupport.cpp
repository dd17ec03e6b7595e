#include "TestSupport.h"

#include "document/Records.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace tb::test {

int AddScene(ScheduleDocument &doc, const QString &scene, const QString &pages, const QString &dayNight,
             const QString &intExt)
{
    StripRecord row;
    row.set(StripField::StripKind, StripKinds::Scene);
    row.set(StripField::SceneNumber, scene);
    row.set(StripField::PageLength, pages);
    row.set(StripField::DayNight, dayNight);
    row.set(StripField::IntExt, intExt);
    row.set(StripField::StripId, QString::number(++doc.values.NextStripId));
    if (!doc.strips.append(row))
        return 0;
    return doc.strips.count();
}

int AddDivider(ScheduleDocument &doc)
{
    StripRecord row;
    row.set(StripField::StripKind, StripKinds::DayDivider);
    row.set(StripField::PageLength, QStringLiteral("0"));
    row.set(StripField::DayCount, QStringLiteral("1"));
    row.set(StripField::StripColour, QStringLiteral("clBlack"));
    if (!doc.strips.append(row))
        return 0;
    return doc.strips.count();
}

int AddBanner(ScheduleDocument &doc, const QString &text, int days)
{
    StripRecord row;
    row.set(StripField::StripKind, StripKinds::Banner);
    row.set(StripField::Synopsis, text);
    row.set(StripField::DayCount, QString::number(days));
    if (!doc.strips.append(row))
        return 0;
    return doc.strips.count();
}

int AddElement(ScheduleDocument &doc, const QString &description, int category, const QString &boardId)
{
    ElementRecord row;
    row.set(ElementField::Description, description);
    row.set(ElementField::CategoryNumber, QString::number(category));
    row.set(ElementField::BoardId, boardId);
    row.set(ElementField::HoldRule, QStringLiteral("NONE"));
    if (!doc.elements.append(row))
        return 0;
    return doc.elements.count();
}

QString Kinds(const ScheduleDocument &doc)
{
    QStringList kinds;
    for (int i = 1; i <= doc.strips.count(); ++i)
        kinds.append(doc.strips[i].kind());
    return kinds.join(u' ');
}

void IsolateEnvironment()
{
    static QTemporaryDir home;
    const QByteArray path = QFile::encodeName(home.path());
    qputenv("HOME", path);
    qputenv("XDG_CONFIG_HOME", path + "/config");
    qputenv("XDG_DATA_HOME", path + "/data");
    qputenv("XDG_CACHE_HOME", path + "/cache");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

QString TempPath(const QString &fileName)
{
    static QTemporaryDir dir;
    return QDir(dir.path()).filePath(fileName);
}

CliRun RunProgram(const QString &program, const QStringList &args, const QString &folder, int timeoutMs)
{
    QProcess p;
    if (!folder.isEmpty())
        p.setWorkingDirectory(folder);
    p.start(program, args);
    CliRun r;
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished();
        r.err = "timed out: " + program;
        return r;
    }
    r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

CliRun RunCli(const QStringList &args)
{
    return RunProgram(QStringLiteral(TB_CLI_PATH), QStringList{"--locale", "en_US"} + args);
}

QByteArray ReadFileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool WriteBytes(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace tb::test
