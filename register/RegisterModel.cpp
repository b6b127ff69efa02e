// The table of the models; see RegisterModel.h.
#include "register/RegisterModel.h"

#include "platform/Numbers.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace norvane
{
namespace
{

constexpr int wideLine = 40;
constexpr int narrowLine = 32;

constexpr RegisterModel models[] = {
    {0, "Velmaro"_L1, RegisterFamily::Velmar, wideLine, false, false},
    {1, "Velmaro"_L1, RegisterFamily::Velmar, wideLine, true, false},
    {2, "Velmarn"_L1, RegisterFamily::Velmar, wideLine, true, true},
    {3, "Dorvik"_L1, RegisterFamily::Dorvik, narrowLine, true, true},
};
constexpr RegisterModel unlisted{3, "Dorvik"_L1, RegisterFamily::Dorvik, narrowLine, true, false};

template <typename Matches>
const RegisterModel& modelThat(Matches matches)
{
    const auto* const found = std::find_if(std::begin(models), std::end(models), matches);
    return found == std::end(models) ? unlisted : *found;
}

} // namespace

const RegisterModel& modelOfNumber(const QString& setting)
{
    const double number = toNumber(setting);
    return modelThat([number](const RegisterModel& model) { return model.place == number; });
}

const RegisterModel& modelOfText(const QString& setting)
{
    return modelThat([&](const RegisterModel& model) { return setting == QString::number(model.place); });
}

} // namespace norvane
