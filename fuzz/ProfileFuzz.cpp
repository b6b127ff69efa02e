// Profile files: settings and screens are read by them, and registers.ini of a stranger may come as well.
// Input: section, key and value in a line each, then the file into which they are written.
#include "fuzz/Target.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "platform/Windows1252.h"

namespace norvane::fuzz
{
namespace
{

/// What a reader can give back: a name or value on one line, without blanks around it, quotes or what would
/// make another kind of line of it.
bool isPlain(const QString& text)
{
    static constexpr QStringView special = u"[]=;\"'\r\n?";
    const auto isSpecial = [](QChar letter) {
        return special.contains(letter);
    };
    return !text.isEmpty() && text.size() <= profileValueLimit && text == text.trimmed() &&
           std::none_of(text.begin(), text.end(), isSpecial);
}

void readAll(const ProfileFile& file)
{
    for (const QString& section : file.sections()) {
        for (const QString& key : file.keys(section)) {
            const QString value = file.value(section, key);
            require(value.size() <= profileValueLimit, "a value is no longer than its limit");
            require(value == file.value(section.toUpper().toLower(), key, QStringLiteral("x")) ||
                        section.toUpper().toLower().compare(section, Qt::CaseInsensitive) != 0,
                    "names meet without regard to case");
        }
    }
}

void requireOthersKept(const ProfileFile& before, const ProfileFile& after, const QString& written)
{
    for (const QString& section : before.sections()) {
        for (const QString& key : before.keys(section)) {
            if (key.compare(written, Qt::CaseInsensitive) != 0) {
                require(before.value(section, key) == after.value(section, key),
                        "writing a key leaves the others");
            }
        }
    }
}

} // namespace

void tryInput(std::string_view input)
{
    const auto take = [&] {
        const auto line = takeUntil(input, '\n');
        return fromWindows1252(QByteArray(line.data(), static_cast<qsizetype>(line.size())));
    };
    const QString section = take();
    const QString key = take();
    const QString value = take();
    const QString path = scratchFile(QStringLiteral("a.ini"), input);
    const ProfileFile before(path);
    readAll(before);
    if (!isPlain(section) || !isPlain(key) || !isPlain(value))
        return;
    require(ProfileFile::write(path, section, key, value), "a key can be written");
    const ProfileFile after(path);
    require(after.value(section, key) == value, "a key that was written reads back");
    requireOthersKept(before, after, key);
}

} // namespace norvane::fuzz
