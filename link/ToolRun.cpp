// See ToolRun.h.
#include "link/ToolRun.h"

#include "platform/CommaValues.h"
#include "platform/FilePaths.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{

ChildResult RunAndWait(const ApplicationValues& values, const QString& commandLine, const ChildWatch& watch,
                       const QString& folder)
{
    QCoreApplication::processEvents();
    return runAndWait(commandLine, values.appPath, watch, folder);
}

QString ReadStatusOut()
{
    return readStatusOutIn({});
}

QString readStatusOutIn(const QString& folder)
{
    const QByteArray content = readWholeFile(joinPath(folder, u"status.out"_s));
    CommaValues values({content.constData(), static_cast<std::size_t>(content.size())});
    // An empty place is not a value: a line end too many must not turn an error into a success.
    std::string_view last;
    while (const auto value = values.next())
        last = value->empty() ? last : *value;
    return QString::fromLatin1(last).remove(u'"');
}

} // namespace norvane::link
