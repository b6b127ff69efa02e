// See KeyQuestions.h.
#include "keys/layout/KeyQuestions.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{

QString refusalText(Refusal refusal)
{
    switch (refusal) {
    case Refusal::FixedKey:
        return u"A fixed key does the same on every register and cannot be moved or replaced."_s;
    case Refusal::Outside:
        return u"The keys would be outside the keyboard."_s;
    case Refusal::NoKeys:
        return u"No keys were copied or marked."_s;
    case Refusal::None:
        break;
    }
    return {};
}

QString blockQuestion(std::size_t keys)
{
    return u"%1 keys are selected. Put this entry on all of them?"_s.arg(keys);
}

QString pluFunctionQuestion()
{
    return u"Function key 200 goes to the registers as \"0200\", which is a PLU key there, and comes back "
           u"from them as a PLU key.\r\rPut it on the key all the same?"_s;
}

} // namespace norvane::keys
