// The table of result codes.
#include "link/ResultCodes.h"

#include "platform/Excerpt.h"
#include "platform/FailurePlace.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

struct ResultCode {
    int code;
    const char* text;
};

constexpr ResultCode resultCodes[] = {
    {1, "1. Bad Agrument Entry"},
    {2, "2. File Open Error"},
    {3, "3. File Information Is Wrong"},
    {4, "4. File Size Mismatch"},
    {5, "5. Argument Conversion Error"},
    {6, "6. File Write Error"},
    {7, "7. Unknown Command"},
    {8, "8. Time Out"},
    {9, "9. Packet Size Error"},
    {10, "10. Packet Number Mismatch"},
    {11, "11. Bad CRC"},
    {12, "Machine Busy"},
    {13, "Pre poll Error"},
    {14, "Pre poll Error"},
    {15, "Report Clear Error"},
    {99, "Aborted by User"},
    {modemFailed, "Modem Failure"},
    {descriptionsPolled, "Please set\rS-Mode.\r5.System Option.\r13. Send PLU Description when polled to N"},
};

/// Empty for a status without a text.
QString knownText(int status)
{
    const auto* row = std::find_if(std::begin(resultCodes), std::end(resultCodes),
                                   [status](const ResultCode& code) { return code.code == status; });
    return row == std::end(resultCodes) ? QString() : QLatin1String(row->text);
}

} // namespace

QString resultText(int status, int dialResult)
{
    const QString text = knownText(status);
    return text.isEmpty() ? u"Error %1 Sorry Error Unknown"_s.arg(dialResult) : text;
}

QString resultInWords(int status)
{
    const QString number = u"%1. "_s.arg(status);
    QString text = knownText(status);
    if (text.startsWith(number))
        text.remove(0, number.size());
    return u"result %1: %2"_s.arg(status).arg(text.isEmpty() ? u"unknown"_s : text.replace(u'\r', u' '));
}

int resultNumber(const QString& statusText)
{
    if (statusText.trimmed().isEmpty())
        return 0;
    const auto explain = [&](const QString&) {
        return u"status.out contains \"%1\", which is not a result code."_s.arg(excerpt(statusText));
    };
    return atPlace(explain, [&] { return toWholeNumber(statusText); });
}

} // namespace norvane::link
