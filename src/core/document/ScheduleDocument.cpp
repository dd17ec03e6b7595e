#include "document/ScheduleDocument.h"

namespace tb {

namespace {

SilentPrompter &defaultPrompter()
{
    static SilentPrompter prompter;
    return prompter;
}

NullStatusSink &defaultStatus()
{
    static NullStatusSink status;
    return status;
}

DocumentView &defaultView()
{
    static DocumentView view;
    return view;
}

} // namespace

QList<Category> DefaultCategories()
{
    return {
        {QStringLiteral("Cst"), QStringLiteral("Cast")},     {QStringLiteral("Ext"), QStringLiteral("Extras")},
        {QStringLiteral("Snt"), QStringLiteral("Stunts")},   {QStringLiteral("Veh"), QStringLiteral("Vehicles")},
        {QStringLiteral("Prp"), QStringLiteral("Props")},    {QStringLiteral("Art"), QStringLiteral("Art Dept.")},
        {QStringLiteral("Anm"), QStringLiteral("Animals")},  {QStringLiteral("Cos"), QStringLiteral("Costume")},
        {QStringLiteral("MUp"), QStringLiteral("Makeup")},   {QStringLiteral("FX"), QStringLiteral("Special FX")},
        {QStringLiteral("Snd"), QStringLiteral("Sound")},    {QStringLiteral("Cam"), QStringLiteral("Camera")},
        {QStringLiteral("Lts"), QStringLiteral("Lighting")}, {QStringLiteral("Grp"), QStringLiteral("Grip")},
        {QStringLiteral("Oth"), QStringLiteral("Other")},
    };
}

ScheduleDocument::ScheduleDocument()
    : crew(CrewRowCount + 1)
    , marks(MaxStrips + 1, false)
    , categories(DefaultCategories())
    , m_prompter(&defaultPrompter())
    , m_status(&defaultStatus())
    , m_view(&defaultView())
{}

void ScheduleDocument::setPrompter(Prompter *prompter)
{
    m_prompter = prompter ? prompter : &defaultPrompter();
}

void ScheduleDocument::setStatusSink(StatusSink *status)
{
    m_status = status ? status : &defaultStatus();
}

void ScheduleDocument::setView(DocumentView *view)
{
    m_view = view ? view : &defaultView();
}

} // namespace tb
