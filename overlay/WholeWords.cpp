// See WholeWords.h.
#include "overlay/WholeWords.h"

#include "overlay/KeyFont.h"
#include "overlay/KeyLines.h"
#include "overlay/LevelImport.h"
#include "platform/RuntimeFailure.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr QChar softHyphen = u'\u00ad';
constexpr float sizeStep = 0.5F;
/// Nobody reads smaller letters on a key.
constexpr float smallestReadable = 2;
/// Larger letters are all too large, whatever size a document says.
constexpr float largestTried = 72;

/// Lines without the blanks between words. A line that ends in a hyphen goes on in the next one.
QString joined(const QStringList& lines)
{
    QString text;
    for (const QString& line : lines)
        text += (text.endsWith(u'-') ? QString() : u" "_s) + line.simplified();
    return text.simplified();
}

QString lettersOf(QString text)
{
    return text.remove(u' ').remove(softHyphen);
}

/// As joined, but a hyphen at the end of a line is not a letter: it was made of a soft one.
QString unhyphenated(const QStringList& lines)
{
    QString text;
    for (const QString& line : lines)
        text += line.trimmed().endsWith(u'-') ? line.trimmed().chopped(1) : line;
    return text;
}

bool isMadeOf(const QStringList& lines, const QString& text)
{
    const auto cut = CUTTEXTUP(text);
    return std::equal(lines.begin(), lines.end(), cut.begin(), cut.end()) ||
           lettersOf(lines.join(QString())) == lettersOf(text) ||
           (text.contains(softHyphen) && lettersOf(unhyphenated(lines)) == lettersOf(text));
}

/// A word in the pieces between its hyphens. A piece keeps the hyphen at its end, a soft one too.
using Word = QStringList;

Word wordOf(const QString& text)
{
    Word pieces{QString()};
    for (const QChar letter : text) {
        pieces.last() += letter;
        if (letter == softHyphen || letter == u'-')
            pieces += QString();
    }
    pieces.removeAll(QString());
    return pieces;
}

/// The first @p count pieces as they print. Where a word is broken, a soft hyphen becomes a hyphen.
QString printedPieces(const Word& word, qsizetype count)
{
    QString text = word.first(count).join(QString());
    const bool isBroken = count < word.size() && text.endsWith(softHyphen);
    return text.remove(softHyphen) + (isBroken ? u"-"_s : QString());
}

/// Widths of texts, each letter measured once.
class Measures
{
public:
    /// @return mm
    [[nodiscard]] double width(const CellFont& font, QStringView text)
    {
        Letters& letters = lettersFor(font);
        double width = 0;
        for (const QChar letter : text) {
            if (letter == softHyphen) // does not print
                continue;
            auto found = letters.widths.find(letter);
            if (found == letters.widths.end()) {
                found = letters.widths.insert(letter,
                                              letters.font.width(QStringView(&letter, 1)).inMillimetres());
            }
            width += *found;
        }
        return width * font.size / measuredSize;
    }

private:
    static constexpr float measuredSize = 10;
    struct Letters {
        KeyFont font;
        QHash<QChar, double> widths;
    };

    Letters& lettersFor(const CellFont& font)
    {
        const auto style = std::tuple(font.name, font.isBold, font.isItalic);
        auto found = m_letters.find(style);
        if (found == m_letters.end()) {
            const CellFont measured{font.name, measuredSize, font.isBold, font.isItalic};
            found = m_letters.emplace(style, Letters{KeyFont(measured), {}}).first;
        }
        return found->second;
    }

    std::map<std::tuple<QString, bool, bool>, Letters> m_letters;
};

/// Fills the lines of one key.
class KeySetter
{
public:
    KeySetter(const Document& document, int key, Measures& measures)
        : m_measures(measures), m_key(document.layout().key(key)),
          m_room(document.geometry().shape(m_key.kind).printWidth.inMillimetres())
    {
        for (int cell = m_key.firstCell; cell <= m_key.lastCell(); ++cell) {
            m_lines += RemoveCarriage(document.cell(cell).text);
            m_fonts.push_back(document.cell(cell).font);
        }
    }

    [[nodiscard]] const QStringList& lines() const { return m_lines; }
    [[nodiscard]] float ownSize() const { return std::ranges::max(m_fonts, {}, &CellFont::size).size; }
    /// Whether the lines fit as they are.
    [[nodiscard]] bool fitsAsItIs() const
    {
        for (std::size_t line = 0; line < m_fonts.size(); ++line) {
            if (m_measures.width(m_fonts[line], m_lines[static_cast<qsizetype>(line)]) > m_room)
                return false;
        }
        return true;
    }
    /// The lines of @p words at @p size; whole words if possible. Nothing if they do not fit.
    [[nodiscard]] std::optional<QStringList> set(const std::vector<Word>& words, float size)
    {
        m_size = size;
        const auto whole = fill(words, false);
        return whole ? whole : fill(words, true);
    }
    void store(Document& document, const QStringList& lines, float size) const
    {
        const int first = lines.size() == 1 ? m_key.cells / 2 : 0;
        for (int line = 0; line < m_key.cells; ++line) {
            TextCell& cell = document.cell(m_key.firstCell + line);
            cell.text = lines.value(line - first);
            cell.font.size = std::min(cell.font.size, size);
        }
    }

private:
    /// In all fonts of the key: which line a text comes to is not known yet.
    [[nodiscard]] bool fits(const QString& text) const
    {
        return std::ranges::all_of(m_fonts, [&](CellFont font) {
            font.size = std::min(font.size, m_size);
            return m_measures.width(font, text) <= m_room;
        });
    }
    [[nodiscard]] std::optional<QStringList> fill(const std::vector<Word>& words, bool breaksWords) const
    {
        QStringList lines{QString()};
        for (Word word : words) {
            while (!word.isEmpty() && lines.size() <= m_key.cells)
                place(word, lines, breaksWords);
        }
        return lines.size() <= m_key.cells ? std::optional(lines) : std::nullopt;
    }
    /// Puts as much of @p word as fits on the last line, and begins another line if nothing does.
    void place(Word& word, QStringList& lines, bool breaksWords) const
    {
        QString& line = lines.last();
        const QString before = line.isEmpty() ? QString() : line + u' ';
        for (qsizetype count = word.size(); count > (breaksWords ? 0 : word.size() - 1); --count) {
            if (!fits(before + printedPieces(word, count)))
                continue;
            line = before + printedPieces(word, count);
            word.remove(0, count);
            if (!word.isEmpty())
                lines += QString();
            return;
        }
        // A line that is empty already has no better one after it.
        for (qsizetype more = line.isEmpty() ? m_key.cells : 1; more > 0; --more)
            lines += QString();
    }

    Measures& m_measures;
    const OverlayKey& m_key;
    double m_room; ///< mm
    float m_size = 0;
    QStringList m_lines;
    std::vector<CellFont> m_fonts;
};

/// From the key's own size down in steps, @p least among them.
float nextSize(float size, float least)
{
    const float next = std::ceil(std::min(size, largestTried) / sizeStep - 1) * sizeStep;
    return size > least ? std::max(next, least) : next;
}

std::vector<Word> wordsOf(const QString& text)
{
    std::vector<Word> words;
    const QStringList parts = text.split(u' ', Qt::SkipEmptyParts);
    words.reserve(static_cast<std::size_t>(parts.size()));
    for (const QString& word : parts)
        words.push_back(wordOf(word));
    return words;
}

/// Sets one key. @return the size at which it fits; 0 for none.
float setKey(Document& document, KeySetter& key, const QString& source, float smallest)
{
    const std::vector<Word> words = wordsOf(source);
    const float own = key.ownSize();
    const float least = std::min(own, smallest);
    for (float size = own; size >= smallestReadable || size == own; size = nextSize(size, least)) {
        const auto lines = key.set(words, size);
        if (lines && size >= least)
            key.store(document, *lines, size);
        if (lines)
            return size;
    }
    return 0;
}

int changedKeys(const Document& before, const Document& after)
{
    return static_cast<int>(std::ranges::count_if(after.layout().keys(), [&](const OverlayKey& key) {
        const auto first = after.cells().begin() + key.firstCell;
        return !std::equal(first, first + key.cells, before.cells().begin() + key.firstCell);
    }));
}

} // namespace

ProgrammeTexts readProgrammeTexts(Keyboard keyboard, const QString& databasePath)
{
    ProgrammeTexts texts(layoutOf(keyboard).keys().size());
    for (int level = 1; geometryOf(keyboard).hasImport && level <= overlayLevels; ++level) {
        try {
            const auto keys = keysOfLevel(keyboard, level, databasePath);
            for (std::size_t key = 0; key < keys.size(); ++key)
                texts[key].push_back(RemoveCarriage(keys[key].text));
        } catch (const RuntimeFailure&) {
            break; // a level that is not there ends the levels; the texts of the keys are words all the same
        }
    }
    return texts;
}

QString sourceText(const QStringList& lines, const std::vector<QString>& programme)
{
    const auto found =
        std::ranges::find_if(programme, [&lines](const QString& text) { return isMadeOf(lines, text); });
    return found != programme.end() ? *found : joined(lines);
}

WholeWordsResult setWholeWords(Document& document, const std::vector<int>& keys,
                               const ProgrammeTexts& programme, float smallest)
{
    const Document before = document;
    WholeWordsResult result;
    Measures measures;
    for (const int key : keys) {
        KeySetter setter(document, key, measures);
        const QString source = sourceText(setter.lines(), programme[static_cast<std::size_t>(key)]);
        if (setter.fitsAsItIs() && joined(setter.lines()) == source.simplified())
            continue;
        const float size = setKey(document, setter, source, smallest);
        if (size < std::min(setter.ownSize(), smallest))
            result.unfit.push_back({key, QString(source).remove(softHyphen), size});
    }
    result.changedKeys = changedKeys(before, document);
    return result;
}

} // namespace norvane::overlay
