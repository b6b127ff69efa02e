// See KeyRows.h.
#include "keys/layout/KeyRows.h"

#include "platform/FailurePlace.h"
#include "store/engine/Database.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr KeyTable keyLink{"KEYLINK"_L1, "KEYLINK"_L1, "Key Link"_L1};
constexpr KeyTable nlu{"NLU"_L1, "NLU"_L1, "PLU & WLU Relocation"_L1};

} // namespace

const KeyTable& keyLinkTable()
{
    return keyLink;
}

const KeyTable& nluTable()
{
    return nlu;
}

KeyRows::KeyRows(store::Database& database, const KeyTable& table, int rowsAhead)
    : m_table(table), m_rows(database.openTable(table.table)), m_field(m_rows.fieldOrdinal(table.field))
{
    m_rows.setIndex(u"primarykey"_s);
    for (int row = 0; row < rowsAhead; ++row)
        next();
}

/// Runs work that needs a row with a good text.
template <typename Work>
decltype(auto) KeyRows::explaining(Work work) const
{
    return atPlace([this](const QString& failure) { return explained(failure); }, work);
}

void KeyRows::next()
{
    explaining([this] { m_rows.moveNext(); });
    ++m_row;
}

store::Value KeyRows::value() const
{
    return explaining([this] { return m_rows.value(m_field); });
}

void KeyRows::store(const QString& text)
{
    if (this->text() != text)
        store(store::Value::text(text));
}

/// An upload would not help when the file is full or damaged.
void KeyRows::store(const store::Value& value)
{
    explaining([this] { m_rows.edit(); });
    atPlace([this](const QString& failure) { return placed(failure); },
            [&] {
                m_rows.setValue(m_field, store::Value(value));
                m_rows.update();
            });
}

QString KeyRows::placed(const QString& failure) const
{
    return u"Table %1, row %2: %3"_s.arg(m_table.table).arg(m_row).arg(failure);
}

QString KeyRows::explained(const QString& failure) const
{
    return placed(failure) + u" Upload %1 from the ECR first."_s.arg(m_table.upload);
}

} // namespace norvane::keys
