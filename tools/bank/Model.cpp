// Words of the register families; see Model.h.
#include "tools/bank/Model.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

const std::array<QString, 3> words{u"Velmaro"_s, u"Velmarn"_s, u"Dorvik"_s};

} // namespace

QString modelWord(Model model)
{
    return words.at(static_cast<std::size_t>(model));
}

std::optional<Model> modelOfWord(const QString& word)
{
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words.at(i) == word)
            return static_cast<Model>(i);
    }
    return std::nullopt;
}

} // namespace bank
