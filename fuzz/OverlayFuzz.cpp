// Documents of keyboard overlays. Input: the keyboard, bit 7 for a file that ends with the input; then the
// file. Otherwise cells of a new document follow, so that a short input makes a whole one.
#include "fuzz/Target.h"
#include "overlay/DocumentFile.h"
#include "platform/FilePaths.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

using overlay::Document;
using overlay::Keyboard;

struct NewDocument {
    explicit NewDocument(Keyboard keyboard) : document(keyboard)
    {
        const QString path = scratchFile(u"new.ovl"_s, {});
        overlay::writeDocument(path, document);
        file = readWholeFile(path).toStdString();
    }
    Document document;
    std::string file;
};

const NewDocument& newDocument(unsigned number)
{
    static const std::array<NewDocument, 3> documents{
        NewDocument(Keyboard::Dorvik), NewDocument(Keyboard::Velmar), NewDocument(Keyboard::Quelmont)};
    return documents.at(number % documents.size());
}

} // namespace

void tryInput(std::string_view input)
{
    constexpr unsigned endsBit = 0x80;
    const unsigned byte = takeByte(input);
    const NewDocument& blank = newDocument(byte % endsBit);
    std::string content(input);
    if ((byte & endsBit) == 0)
        content.append("\r\n").append(blank.file);
    Document document = blank.document;
    const QString path = scratchFile(u"a.ovl"_s, content);
    if (!succeeds({Failure::InputPastEnd, Failure::TypeMismatch, Failure::Overflow, Failure::TextTooLong},
                  [&] { overlay::readDocument(path, document); }))
        return;
    // Characters that a line cannot contain, such as a lone carriage return, change at the first save only.
    overlay::writeDocument(path, document);
    const QByteArray saved = readWholeFile(path);
    Document again = blank.document;
    require(succeeds({}, [&] { overlay::readDocument(path, again); }), "a document that was saved opens");
    overlay::writeDocument(path, again);
    require(readWholeFile(path) == saved, "a document that was opened is saved as it was");
}

} // namespace norvane::fuzz
