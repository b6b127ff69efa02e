// The keyboard as the cashier uses it: which key of which level rings an article.
#pragma once

#include "tools/bank/Bank.h"

#include <QByteArrayList>
#include <QHash>
#include <QString>

#include <optional>

namespace bank
{

/// A key by its level and its number within the level, both from 1.
struct KeyPlace {
    int level = 0;
    int key = 0;

    /// "2/17" as the journal and the command line write it.
    [[nodiscard]] QByteArray text() const;
    /// @return nothing if @p text is not the place of a key.
    [[nodiscard]] static std::optional<KeyPlace> of(const QString& text);
    bool operator==(const KeyPlace&) const = default;
};

class Keyboard
{
public:
    /// Reads the register's keys and its window look-ups. @throws ToolFailure, TextFault
    explicit Keyboard(const Register& of);

    /// The first key that rings PLU @p number (18 digits); a key of the PLU comes before one that opens a
    /// window with it. @return nothing for an article that is rung by its number.
    [[nodiscard]] std::optional<KeyPlace> keyOf(const QByteArray& number) const;
    /// The PLU numbers that key @p place rings: its own, or those in its window. Empty for any other key.
    [[nodiscard]] QByteArrayList articlesOn(const KeyPlace& place) const;

private:
    /// What is read of a key: file 16 and file 17.
    struct Code {
        QByteArray link;
        QByteArray number;
    };
    [[nodiscard]] KeyPlace placeOf(qsizetype row) const;
    [[nodiscard]] QByteArrayList articlesOf(const Code& code) const;
    void noteKeys(const QByteArray& link);

    QList<Code> m_keys;
    QList<QByteArrayList> m_windows; ///< PLU numbers by look-up
    qsizetype m_keysALevel = 0;
    QHash<QByteArray, KeyPlace> m_keyOf;
};

} // namespace bank
