// Databases of the former program. Input: changes to a whole small one, four bytes each: the page, the place
// in it (two bytes) and the new byte. The real reader reads it in a process of its own.
#include "former/Conversion.h"
#include "former/ConversionReport.h"
#include "fuzz/Target.h"
#include "tests/support/FormerSample.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

const QByteArray& wholeDatabase()
{
    static const QByteArray database = [] {
        test::FormerWriter writer;
        writer.add(test::plusOfEveryType());
        return writer.content();
    }();
    return database;
}

QByteArray changed(std::string_view input)
{
    QByteArray database = wholeDatabase();
    while (input.size() >= 4) {
        const qsizetype page = takeByte(input);
        const qsizetype high = takeByte(input);
        const qsizetype place = page * 4096 + (high * 256 + takeByte(input)) % 4096;
        const char byte = static_cast<char>(takeByte(input));
        if (place < database.size())
            database[place] = byte;
    }
    return database;
}

} // namespace

void tryInput(std::string_view input)
{
    const QString path = scratchFile(u"velmar.mdb"_s, changed(input).toStdString());
    try {
        const auto found = former::examine(path, QStringLiteral(READER_FOLDER));
        require(!former::conversionQuestion(found).isEmpty(), "there is a question");
        (void)former::convertDatabase(scratchFolder(), QStringLiteral(READER_FOLDER), found);
    } catch (const former::FormerError& error) {
        require(error.problem() != former::FormerProblem::Changed,
                "the second reading finds what the first did");
        require(!error.text().isEmpty(), "a refusal says why");
    }
    for (const char* made : {"velmar.mdb", "velmar.former.mdb", "norvane-conversion.txt"})
        QFile::remove(scratchFolder() + u'/' + QLatin1StringView(made));
}

} // namespace norvane::fuzz
