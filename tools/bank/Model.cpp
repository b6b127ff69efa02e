// Words of the register families; see Model.h.
#include "tools/bank/Model.h"

#include <array>

namespace bank
{
namespace
{

const std::array<QString, 3> words{QStringLiteral("Velmaro"), QStringLiteral("Velmarn"),
                                   QStringLiteral("Dorvik")};

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
