#pragma once

#include "document/DocumentOperations.h"
#include "document/DocumentView.h"
#include "document/Prompter.h"
#include "document/ScheduleDocument.h"
#include "document/StatusSink.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTest>

#include <tuple>

namespace tb::test {

// Records every prompt and answers questions from a script (Yes when the script is empty).
class ScriptedPrompter : public Prompter
{
public:
    ScriptedPrompter() = default;
    // Answers the document's prompts from now on.
    explicit ScriptedPrompter(ScheduleDocument &doc) { doc.setPrompter(this); }
    PromptReply ask(const Prompt &prompt) override
    {
        prompts.append(prompt);
        if (prompt.buttons == Buttons::Ok)
            return {Answer::Ok, prompt.checkBoxChecked};
        const Answer answer = answers.isEmpty() ? Answer::Yes : answers.takeFirst();
        return {answer, prompt.checkBoxChecked};
    }
    QStringList texts() const
    {
        QStringList list;
        for (const Prompt &p : prompts)
            list.append(p.text);
        return list;
    }

    QList<Answer> answers;
    QList<Prompt> prompts;
};

// Keeps the last text of each status panel and every gauge value.
class RecordingStatus : public StatusSink
{
public:
    RecordingStatus() = default;
    explicit RecordingStatus(ScheduleDocument &doc) { doc.setStatusSink(this); }
    void setPanelText(int panel, const QString &text) override { panels[panel] = text; }
    void setProgress(int percent) override { progress.append(percent); }
    void setBusy(bool b) override { busy = b; }

    QMap<int, QString> panels;
    QList<int> progress;
    bool busy = false;
};

// Counts what the core asked of the window.
class RecordingView : public DocumentView
{
public:
    RecordingView() = default;
    explicit RecordingView(ScheduleDocument &doc) { doc.setView(this); }
    void setTitle(const QString &t) override { title = t; }
    void addRecentFile(const QString &path) override { recent.append(path); }
    void zoomChanged(double z) override { zoom = z; }
    void restartAutosave() override { ++autosaveRestarts; }

    QString title;
    QStringList recent;
    double zoom = 0;
    int autosaveRestarts = 0;
};

// Building blocks for documents in tests. Each appends one row and returns its number.
int AddScene(ScheduleDocument &doc, const QString &scene, const QString &pages, const QString &dayNight = "D",
             const QString &intExt = "I");
int AddDivider(ScheduleDocument &doc);
int AddBanner(ScheduleDocument &doc, const QString &text, int days = 0);
int AddElement(ScheduleDocument &doc, const QString &description, int category = 1, const QString &boardId = {});

// Declares the columns of a data table: Columns<QString, int>("name", "count").
template <typename... T, typename... Names>
void Columns(const Names &...names)
{
    static_assert(sizeof...(T) == sizeof...(Names), "one name for each column");
    (QTest::addColumn<T>(names), ...);
}

// The current row's values of the named columns, as QFETCH gives them one by one:
// auto [name, count] = Fetch<QString, int>("name", "count").
template <typename... T, typename... Names>
std::tuple<T...> Fetch(const Names &...names)
{
    static_assert(sizeof...(T) == sizeof...(Names), "one name for each column");
    return {*static_cast<T *>(QTest::qData(names, ::qMetaTypeId<T>()))...};
}

// One data row on one line: Row(tag, values...) is QTest::newRow(tag) << values...
template <typename... T>
void Row(const char *tag, const T &...values)
{
    (QTest::newRow(tag) << ... << values);
}

// The named child of the type; the test program stops when there is none.
template <typename T>
T *Child(const QObject *parent, const char *name)
{
    T *found = parent->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("no child %s", name);
    return found;
}
template <typename T>
T *Child(const QObject &parent, const char *name)
{
    return Child<T>(&parent, name);
}

// The kinds of all strips joined, e.g. "1 1 2 3 1".
QString Kinds(const ScheduleDocument &doc);

// A path inside a fresh temporary folder that lives until the test program ends.
QString TempPath(const QString &fileName);

// What a run of the command-line tool gave back.
struct CliRun
{
    int code = -1;
    QString out;
    QString err;
};
// Runs the program in the folder (the current one when empty) and waits for it; a crash
// gives the code -1, a run past the time limit is killed and says so in err.
CliRun RunProgram(const QString &program, const QStringList &args, const QString &folder = {}, int timeoutMs = 60000);
// Runs torvanbridge-cli with the arguments, in the en_US locale, and waits for it.
CliRun RunCli(const QStringList &args);

// The bytes of a file; empty when it cannot be read.
QByteArray ReadFileBytes(const QString &path);
// Writes the bytes to the file, making its folder if needed; false when it cannot.
bool WriteBytes(const QString &path, const QByteArray &bytes);

// Gives the test program a private, empty home, configuration and data folder, and the
// offscreen platform unless another is set, before the application object exists: a
// test run straight from any folder never reads or writes the settings of the person
// running it, and needs no display.
void IsolateEnvironment();

} // namespace tb::test

// The test program's main function: TB_TEST_MAIN for tests with a (widget or gui)
// application object, TB_TEST_GUILESS_MAIN for tests that need neither.
#define TB_TEST_MAIN_WITH_APP(TestObject, Setup)                                                                       \
    int main(int argc, char *argv[])                                                                                   \
    {                                                                                                                  \
        ::tb::test::IsolateEnvironment();                                                                              \
        Setup TestObject tc;                                                                                           \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        return QTest::qExec(&tc, argc, argv);                                                                          \
    }
#define TB_TEST_MAIN(TestObject) TB_TEST_MAIN_WITH_APP(TestObject, QTEST_MAIN_SETUP())
#define TB_TEST_GUILESS_MAIN(TestObject) TB_TEST_MAIN_WITH_APP(TestObject, QTEST_QAPP_SETUP(QCoreApplication))
