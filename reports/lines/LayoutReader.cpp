// The engine that reads a layout by the tables of its keys; see LayoutReader.h.
#include "reports/lines/LayoutReader.h"

#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "reports/data/ReportError.h"
#include "reports/lines/BlockKeys.h"
#include "reports/lines/LayoutKeys.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// A long text of a column continues in further keys, Value2 and so on.
constexpr int mostValues = 40;

class LayoutReader
{
public:
    /// @param block "Block1" for the table of a summary's block, whose sections are called so, with a point
    /// before the usual names
    /// @param mistakes takes all mistakes; without it the first one is thrown.
    LayoutReader(const QString& path, const ProfileFile& file, std::vector<LayoutMistake>* mistakes,
                 const QString& block = {})
        : m_file(file), m_mistakes(mistakes), m_block(block)
    {
        m_layout.path = path;
    }

    ReportLayout read()
    {
        LayoutTarget target{m_layout, &m_layout.source};
        // What follows names fields of the tables that are read here.
        if (!reads([&] { readReport(target); }))
            return std::move(m_layout);
        if (hasSection(u"Block1"_s))
            return readBlocks();
        if (!reads([this] { readJoins(); }))
            return std::move(m_layout);
        readIfThere(u"Classes"_s, layoutKeys().classes, target);
        readColumns();
        if (m_layout.classes && hasSection(u"Group"_s))
            reads([this] { fail(u"Group"_s, {}, u"a report has either groups or classes"_s); });
        readIfThere(u"Group"_s, layoutKeys().group, target);
        readIfThere(u"Sort"_s, layoutKeys().sort, target);
        readIfThere(u"Link"_s, layoutKeys().link, target);
        readCharts();
        return std::move(m_layout);
    }

    /// Without this check a misspelled section would be ignored silently, and so would every section after a
    /// gap in the numbers.
    void checkSections() const
    {
        static const QRegularExpression known(
            u"^(Report|Classes|Link|(Block[1-9][0-9]?\\.(?!Chart))?(Group|Sort|(Join|Column|Chart)([1-9][0-9]{0,3}))|(Block)([1-9][0-9]?))$"_s,
            QRegularExpression::CaseInsensitiveOption);
        const QStringList sections = m_file.sections();
        for (const QString& section : sections)
            reads([&] { checkSection(section, known.match(section), sections); });
    }

private:
    [[noreturn]] void fail(const QString& section, QStringView key, const QString& text) const
    {
        const QString name = sectionOf(section);
        const QString keyName = key.toString();
        throw LayoutError(m_layout.path, {lineInLayout(m_layout.path, name, keyName), name, keyName, text});
    }

    /// Does @p act. @return false if it failed and its mistake was noted.
    template <typename Act>
    bool reads(const Act& act) const
    {
        try {
            act();
            return true;
        } catch (const LayoutError& error) {
            if (m_mistakes == nullptr)
                throw;
            m_mistakes->push_back(error.mistake());
            return false;
        }
    }

    void checkSection(const QString& section, const QRegularExpressionMatch& match,
                      const QStringList& sections) const
    {
        if (!match.hasMatch()) {
            fail(section, {},
                 u"Report, Join1, Classes, Column1, Group, Sort, Link, Chart1 or Block1 is expected"_s);
        }
        const int number = (match.captured(5) + match.captured(7)).toInt();
        const QString before =
            match.captured(2) + match.captured(4) + match.captured(6) + QString::number(number - 1);
        if (number > 1 && !sections.contains(before, Qt::CaseInsensitive))
            fail(section, {}, u"there is no section [%1] before it"_s.arg(before));
    }

    void readReport(LayoutTarget& target) const
    {
        readKeys(u"Report"_s, layoutKeys().report, target,
                 m_block.isEmpty() ? QStringList() : keyNames(blockKeys()));
    }

    void readIfThere(const QString& section, std::span<const KeyRule> rules, LayoutTarget& target) const
    {
        if (hasSection(section))
            reads([&] { readKeys(section, rules, target); });
    }

    /// The keys of a block's table are in the block's own section.
    [[nodiscard]] QString sectionOf(const QString& name) const
    {
        if (m_block.isEmpty())
            return name;
        return name == "Report"_L1 ? m_block : m_block + u'.' + name;
    }

    /// @param others keys that are read elsewhere. @param shownOthers how a mistake lists them, if shorter.
    void readKeys(const QString& section, std::span<const KeyRule> rules, LayoutTarget& target,
                  const QStringList& others = {}, const QStringList& shownOthers = {}) const
    {
        for (const QString& key : m_file.keys(sectionOf(section))) {
            if (others.contains(key, Qt::CaseInsensitive))
                continue;
            const auto isIt = [&key](const KeyRule& rule) {
                return rule.key.compare(key, Qt::CaseInsensitive) == 0;
            };
            if (std::ranges::any_of(rules, isIt))
                continue;
            const QStringList expected = keyNames(rules) + (shownOthers.isEmpty() ? others : shownOthers);
            reads([&] {
                fail(section, key, u"there is no such key; expected %1"_s.arg(expected.join(u", "_s)));
            });
        }
        for (const auto& rule : rules)
            readKey(section, rule, target);
    }

    [[nodiscard]] static QStringList keyNames(std::span<const KeyRule> rules)
    {
        QStringList names;
        for (const auto& rule : rules)
            names.append(rule.key.toString());
        return names;
    }

    void readKey(const QString& section, const KeyRule& rule, LayoutTarget& target) const
    {
        const QString value = m_file.value(sectionOf(section), rule.key, {}, profileValueLimit + 1);
        if (value.size() > profileValueLimit)
            fail(section, rule.key, u"it has more than %1 characters"_s.arg(profileValueLimit));
        if (value.isEmpty() && rule.isRequired)
            fail(section, rule.key, u"it is missing; expected %1"_s.arg(rule.expected));
        if (value.isEmpty())
            return;
        try {
            if (!rule.take(value, target)) {
                fail(section, rule.key, u"expected %1, but found \"%2\""_s.arg(rule.expected, value));
            }
        } catch (const FormulaError& error) {
            fail(section, rule.key, error.text());
        }
    }

    [[nodiscard]] bool hasSection(const QString& name) const
    {
        return m_file.sections().contains(sectionOf(name), Qt::CaseInsensitive);
    }

    void readJoins()
    {
        for (int number = 1; hasSection(u"Join%1"_s.arg(number)); ++number) {
            Join join;
            LayoutTarget target{m_layout, &m_layout.source};
            target.join = &join;
            readKeys(u"Join%1"_s.arg(number), layoutKeys().join, target);
            m_layout.joins.push_back(join);
        }
    }

    void readColumn(const QString& section, LayoutTarget& target)
    {
        QStringList further;
        for (int number = 2; number <= mostValues; ++number)
            further.append(u"Value%1"_s.arg(number));
        readKeys(section, layoutKeys().column, target, further,
                 {u"%1 to %2"_s.arg(further.first(), further.last())});
        const ColumnLayout& column = *target.column;
        if (!column.number && column.text.text.isEmpty() && column.rank == RankPart::None)
            fail(section, u"Value", u"it is missing; expected fields such as {PLUSALES.ID}"_s);
        for (const QString& key : further) {
            KeyRule rule = layoutKeys().furtherValue;
            rule.key = key;
            readKey(section, rule, target);
        }
    }

    void readColumns()
    {
        if (!hasSection(u"Column1"_s))
            reads([this] { fail(u"Column1"_s, {}, u"it is missing; a report has one column at least"_s); });
        for (int number = 1; hasSection(u"Column%1"_s.arg(number)); ++number) {
            ColumnLayout column;
            LayoutTarget target{m_layout, &m_layout.source};
            target.column = &column;
            reads([&] {
                readColumn(u"Column%1"_s.arg(number), target);
                // Headings of groups are in the first column.
                if (number == 1 && !column.shownIf.empty())
                    fail(u"Column1"_s, u"Show", u"the first column is always shown"_s);
            });
            m_layout.columns.push_back(std::move(column));
        }
    }

    void readCharts()
    {
        for (int number = 1; hasSection(u"Chart%1"_s.arg(number)); ++number)
            reads([&] { readChart(u"Chart%1"_s.arg(number)); });
    }

    void readChart(const QString& section)
    {
        ChartLayout chart;
        LayoutTarget target{m_layout, &m_layout.source};
        target.chart = &chart;
        readKeys(section, layoutKeys().chart, target);
        if (chart.from == PointSource::Groups && !m_layout.hasGroups())
            fail(section, u"From", u"the report has no groups"_s);
        if (chart.from != PointSource::Groups && chart.label.text.isEmpty())
            fail(section, u"Label", u"it is missing; expected a text with fields"_s);
        m_layout.charts.push_back(std::move(chart));
    }

    ReportLayout readBlocks()
    {
        if (hasSection(u"Column1"_s))
            reads([this] { fail(u"Column1"_s, {}, u"a summary has blocks in place of columns"_s); });
        for (int number = 1; hasSection(u"Block%1"_s.arg(number)); ++number)
            reads([&] { m_layout.blocks.push_back(readBlock(u"Block%1"_s.arg(number))); });
        return std::move(m_layout);
    }

    BlockLayout readBlock(const QString& section)
    {
        BlockLayout block;
        LayoutTarget target{m_layout};
        target.block = &block;
        readKeys(section, blockKeys(), target, keyNames(layoutKeys().report));
        const bool hasTable = hasSection(section + u".Column1"_s);
        const bool needsTable = block.kind != BlockKind::Days && block.of == 0 && !block.isQuotient();
        if (hasTable != needsTable) {
            fail(section + u".Column1"_s, {},
                 needsTable ? u"it is missing; a block has one column at least"_s
                            : u"this block has no table of its own"_s);
        }
        if (needsTable) {
            block.table = std::make_shared<ReportLayout>(
                LayoutReader(m_layout.path, m_file, m_mistakes, section).read());
        }
        return block;
    }

    const ProfileFile& m_file;
    std::vector<LayoutMistake>* m_mistakes;
    QString m_block;
    ReportLayout m_layout;
};

ReportLayout read(const QString& path, std::vector<LayoutMistake>* mistakes)
{
    const QString found = existingPath(path);
    if (!QFileInfo(found).isFile())
        throw ReportError(u"%1: the report's layout was not found."_s.arg(path));
    const ProfileFile file(found);
    LayoutReader reader(found, file, mistakes);
    reader.checkSections();
    return reader.read();
}

} // namespace

ReportLayout readLayout(const QString& path)
{
    return read(path, nullptr);
}

std::vector<LayoutMistake> layoutMistakes(const QString& path)
{
    std::vector<LayoutMistake> mistakes;
    (void)read(path, &mistakes);
    return mistakes;
}

} // namespace norvane::reports
