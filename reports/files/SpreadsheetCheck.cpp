// See SpreadsheetCheck.h.
#include "reports/files/SpreadsheetCheck.h"

#include <array>
#include <memory>
#include <minizip/unzip.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

struct Closer {
    void operator()(unzFile zip) const { unzClose(zip); }
};
using Zip = std::unique_ptr<void, Closer>;

/// The last bytes of the part that is open; nothing when it cannot be read whole.
QByteArray endOfPart(unzFile zip)
{
    constexpr qsizetype kept = 32;
    std::array<char, 1 << 16> buffer{};
    QByteArray end;
    int count = 0;
    while ((count = unzReadCurrentFile(zip, buffer.data(), buffer.size())) > 0)
        end = (end + QByteArray(buffer.data(), count)).right(kept);
    const bool isSound = unzCloseCurrentFile(zip) == UNZ_OK;
    return count == 0 && isSound ? end : QByteArray();
}

} // namespace

bool isWholeSpreadsheet(const QByteArray& path)
{
    const Zip zip(unzOpen(path.constData()));
    return zip && unzLocateFile(zip.get(), "xl/worksheets/sheet1.xml", 1) == UNZ_OK &&
           unzOpenCurrentFile(zip.get()) == UNZ_OK && endOfPart(zip.get()).endsWith("</worksheet>");
}

} // namespace norvane::reports
