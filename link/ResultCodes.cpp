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

constexpr bool ofRegister = true; ///< who gives the result
constexpr bool ofTool = false;

struct ResultCode {
    int code;
    const char* text;
    bool isOfRegister;
    const char* happened;
    const char* helps;
};

constexpr const char* notThisTool = "the transfer tool does not know this request";
constexpr const char* checkTool = "Check that VELMARCOMM is the one for this program.";
constexpr const char* unfit = "the file does not suit the register";
constexpr const char* checkModel = "Check the model under \"Setup\", and upload the file before you send it.";
constexpr const char* fileFault = "a file in the program's folder cannot be read or written";
constexpr const char* checkDisk = "Look for a full disk or a file that is write-protected.";
constexpr const char* garbled = "data was garbled on the line";
constexpr const char* checkLine = "Check the cable, or take a lower speed under \"Setup\".";
constexpr const char* notMadeUp = "a register could not make up its reports";
constexpr const char* checkRegister = "Look at the register's display, and finish what it is doing.";

constexpr ResultCode resultCodes[] = {
    {1, "1. Bad Agrument Entry", ofTool, notThisTool, checkTool},
    {2, "2. File Open Error", ofTool, fileFault, checkDisk},
    {3, "3. File Information Is Wrong", ofRegister, unfit, checkModel},
    {4, "4. File Size Mismatch", ofRegister, unfit, checkModel},
    {5, "5. Argument Conversion Error", ofTool, notThisTool, checkTool},
    {6, "6. File Write Error", ofTool, fileFault, checkDisk},
    {7, "7. Unknown Command", ofTool, notThisTool, checkTool},
    {8, "8. Time Out", ofRegister, "a register did not answer",
     "Switch it on; check the cable, and port and speed under \"Setup\"."},
    {9, "9. Packet Size Error", ofRegister, garbled, checkLine},
    {10, "10. Packet Number Mismatch", ofRegister, garbled, checkLine},
    {11, "11. Bad CRC", ofRegister, garbled, checkLine},
    {12, "Machine Busy", ofRegister, "a register is busy", "Finish the sale at it."},
    {13, "Pre poll Error", ofRegister, notMadeUp, checkRegister},
    {14, "Pre poll Error", ofRegister, notMadeUp, checkRegister},
    {15, "Report Clear Error", ofRegister, "a register did not clear its reports", checkRegister},
    {99, "Aborted by User", ofTool, "somebody stopped the transfer tool", ""},
    {modemFailed, "Modem Failure", ofTool, "the modem reached no register",
     "Check the modem's cable, and telephone number and port under \"Setup\"."},
    {descriptionsPolled, "Please set\rS-Mode.\r5.System Option.\r13. Send PLU Description when polled to N",
     ofTool, "the registers send descriptions with their sales, which cannot be read here",
     "Change this option at the registers."},
};

/// nullptr for a status without a row.
const ResultCode* codeOf(int status)
{
    const auto* row = std::find_if(std::begin(resultCodes), std::end(resultCodes),
                                   [status](const ResultCode& code) { return code.code == status; });
    return row == std::end(resultCodes) ? nullptr : row;
}

/// Empty for a status without a text.
QString knownText(int status)
{
    const ResultCode* const row = codeOf(status);
    return row == nullptr ? QString() : QLatin1String(row->text);
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

ResultMeaning resultMeaning(int status)
{
    if (const ResultCode* const row = codeOf(status))
        return {QLatin1String(row->happened), QLatin1String(row->helps), row->isOfRegister};
    return {u"the transfer tool gives no other reason"_s, u"Ask the dealer of the registers."_s, false};
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
