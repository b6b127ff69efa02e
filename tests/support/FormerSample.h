// A table of a former database that tests and fuzzing share.
#pragma once

#include "tests/support/FormerWriter.h"

namespace norvane::test
{

/// PLUs with fields of every type that has a text form. The second record has only what may not be empty.
inline FormerRows plusOfEveryType()
{
    using namespace Qt::Literals::StringLiterals;
    return {u"PLUDATA"_s,
            {{u"plunumber"_s, FormerType::Text, 18},
             {u"Description"_s, FormerType::Memo},
             {u"groupno"_s, FormerType::Byte},
             {u"PLUSTATUS"_s, FormerType::Integer},
             {u"WLUNUMBER"_s, FormerType::Long},
             {u"INactive"_s, FormerType::YesNo},
             {u"PRESET"_s, FormerType::YesNo},
             {u"STOCKLINK"_s, FormerType::Double},
             {u"PRICE1"_s, FormerType::Currency},
             {u"PRICE2"_s, FormerType::Numeric, 3},
             {u"PRICE3"_s, FormerType::Single},
             {u"PRICE4"_s, FormerType::Text, 20}},
            {{u"000000000000001001"_s, u"Café Crème ß"_s, 200, -300, 70000, true, false, 123456789012345.0,
              -12345678, u"-123456789012345.678"_s, 0.1F, u" 1.5"_s},
             {u"000000000000001002"_s, QVariant(), QVariant(), QVariant(), QVariant(), false, true,
              QVariant(), QVariant(), QVariant(), QVariant(), QVariant()}}};
}

} // namespace norvane::test
