// See FieldTravel.h.
#include "records/FieldTravel.h"

#include <string>
#include <string_view>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

/// A field in a column: sent from one field, read into another, which may be the same. Empty for neither.
struct Journey {
    std::string sent;
    std::string read;
};

/// Lists the journeys of a layout's columns, in the order in which they are read.
class Journeys
{
public:
    explicit Journeys(const RecordLayout& layout)
    {
        for (const ColumnSet& set : layout.sets) {
            for (const Column& column : set.columns)
                std::visit([this](const auto& form) { add(form); }, column);
        }
    }
    [[nodiscard]] const std::vector<Journey>& all() const { return m_all; }

private:
    void add(const SpareColumn& /*column*/) {}
    void add(const NumberColumn& column)
    {
        // A column that rereads takes the text of the one before it.
        if (!column.rereads)
            m_source = column.written ? column.field : std::string();
        if (column.written && column.rereads)
            m_all.push_back({column.field, {}});
        m_all.push_back({m_source, column.readField});
    }
    void add(const OptionsColumn& column)
    {
        for (const auto& parts : column.digits) {
            for (const DigitPart& part : parts)
                m_all.push_back({sentField(part), column.numberField.empty() ? readField(part) : ""});
        }
        if (!column.numberField.empty())
            m_all.push_back({column.digits[0].front().field, column.numberField});
    }
    template <typename Form>
    void add(const Form& column)
    {
        m_source = column.field;
        m_all.push_back({column.field, column.field});
    }

    static std::string sentField(const DigitPart& part)
    {
        const bool isSent =
            part.writing != DigitPart::Writing::Nothing && part.writing != DigitPart::Writing::Always;
        return isSent ? part.field : std::string();
    }
    static std::string readField(const DigitPart& part)
    {
        return part.reading != DigitPart::Reading::Nothing ? part.readField : std::string();
    }

    std::vector<Journey> m_all;
    std::string m_source; ///< of the latest column with a text of its own
};

bool isNamed(const std::string& name, const QString& field)
{
    return field.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0;
}

/// What the columns do with one field.
struct Travel {
    bool isSent = false;
    bool isRead = false;
    std::string readFrom{};   ///< field that the value read last was sent from
    std::string returnedAs{}; ///< another field that the value is read into
};

Travel travelOf(const RecordLayout& layout, const QString& field)
{
    Travel travel;
    const Journeys journeys(layout);
    for (const auto& [sent, read] : journeys.all()) {
        if (isNamed(sent, field)) {
            travel.isSent = true;
            if (!read.empty() && !isNamed(read, field))
                travel.returnedAs = read;
        }
        if (isNamed(read, field)) {
            travel.isRead = true;
            travel.readFrom = sent;
        }
    }
    return travel;
}

} // namespace

QString oneWayReason(const RecordLayout& layout, const QString& field)
{
    const Travel travel = travelOf(layout, field);
    if (travel.isSent && isNamed(travel.readFrom, field))
        return {};
    if (!travel.isSent && !travel.isRead)
        return u"kept here only, registers do not have it"_s;
    if (!travel.isSent)
        return u"returned by the register, never sent"_s;
    if (!travel.returnedAs.empty())
        return u"sent, and returned as %1"_s.arg(QLatin1StringView(travel.returnedAs));
    return travel.readFrom.empty()
               ? u"sent, not returned by the register"_s
               : u"sent, but the register returns %1 here"_s.arg(QLatin1StringView(travel.readFrom));
}

} // namespace norvane::records
