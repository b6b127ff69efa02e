// See ZipPart.h.
#include "articles/ZipPart.h"

#include "articles/SpreadsheetError.h"

#include <QFile>

#include <limits>
#include <minizip/unzip.h>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{

void ZipPart::Closer::operator()(void* zip) const
{
    unzClose(zip);
}

ZipPart::ZipPart(const QString& path, const QString& name)
    : m_zip(unzOpen(QFile::encodeName(path).constData()))
{
    constexpr int anyCase = 2;
    constexpr uLong encrypted = 1;
    if (!m_zip)
        throw SpreadsheetError(u"is damaged, or is not a spreadsheet in the format XLSX"_s);
    unz_file_info details{};
    if (unzLocateFile(m_zip.get(), name.toUtf8().constData(), anyCase) != UNZ_OK ||
        unzGetCurrentFileInfo(m_zip.get(), &details, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return;
    if ((details.flag & encrypted) != 0)
        throw SpreadsheetError(u"is encrypted; save it without a password"_s);
    if (unzOpenCurrentFile(m_zip.get()) == UNZ_OK)
        open(ReadOnly | Unbuffered);
}

ZipPart::~ZipPart() = default;

qint64 ZipPart::readData(char* data, qint64 most)
{
    const auto wanted = static_cast<unsigned>(std::min<qint64>(most, std::numeric_limits<int>::max()));
    const int count = m_fault.isEmpty() ? unzReadCurrentFile(m_zip.get(), data, wanted) : -1;
    if (count > 0) {
        noteSize(data, count);
    } else if (m_fault.isEmpty() && (count < 0 || unzCloseCurrentFile(m_zip.get()) != UNZ_OK)) {
        m_fault = u"is damaged"_s;
    }
    return m_fault.isEmpty() && count > 0 ? count : -1;
}

void ZipPart::noteSize(const char* data, qint64 size)
{
    const auto last = std::string_view(data, static_cast<std::size_t>(size)).rfind('<');
    m_run = last == std::string_view::npos ? m_run + size : size - static_cast<qint64>(last);
    m_size += size;
    if (m_size > mostBytes || m_run > longestRun)
        m_fault = u"is too large when unpacked"_s;
}

} // namespace norvane::articles
