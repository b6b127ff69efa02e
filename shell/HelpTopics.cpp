// Table of the forms and their places; see HelpTopics.h.
#include "shell/HelpTopics.h"

#include "base/LossQuestion.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr HelpTopic topics[] = {
    {"FrmMain"_L1, "user-guide"_L1},
    {"OverviewPanel"_L1, "the-overview"_L1},
    {"FrmCustomer"_L1, "choosing-a-customer"_L1},
    {"NewShopDialog"_L1, "a-new-shop"_L1},
    {"CopiesDialog"_L1, "safety-copies-and-the-log"_L1},
    {"FrmSetup"_L1, "setup"_L1},
    {"frmAbout"_L1, "when-something-goes-wrong"_L1},
    {"frmSysInfo"_L1, "when-something-goes-wrong"_L1},
    {"FrmComm"_L1, "fetching-and-sending-programmes"_L1},
    {"CompareDialog"_L1, "comparing-with-a-register"_L1},
    {"FrmsalesComm"_L1, "collecting-the-days-sales"_L1},
    {"Frmreports"_L1, "from-the-menu"_L1},
    {"MoreReports"_L1, "more-reports"_L1},
    {"ReportPreview"_L1, "the-preview"_L1},
    {"OptionForm"_L1, "screens"_L1},
    {"FrmSearch"_L1, "screens"_L1},
    {"UsesFrame"_L1, "screens"_L1},
    {"CopyToShopsDialog"_L1, "copying-to-other-customers"_L1},
    {"TableWindow"_L1, "many-articles-at-once"_L1},
    {"SetFieldDialog"_L1, "many-articles-at-once"_L1},
    {"PlannedDialog"_L1, "prices-with-a-date"_L1},
    {"ImportDialog"_L1, "many-articles-at-once"_L1},
    {"KeyLayoutVelmar"_L1, "keyboards"_L1},
    {"KeyLayoutDorvik"_L1, "keyboards"_L1},
    {"KeyFinder"_L1, "find-and-compare-keys"_L1},
    {"CompareLevels"_L1, "find-and-compare-keys"_L1},
    {"ImportLevel"_L1, "a-level-for-other-shops"_L1},
    {"MapPreview"_L1, "a-level-on-paper"_L1},
    {"copylevel"_L1, "copy-levels"_L1},
    {"FrmFunctKey"_L1, "function-keys"_L1},
    {"frmwlu"_L1, "window-look-ups"_L1},
    {"Velmar"_L1, "keyboard-overlays"_L1},
    {"Dorvik"_L1, "keyboard-overlays"_L1},
    {"Quelmont"_L1, "keyboard-overlays"_L1},
    {"KeyKinds"_L1, "many-keys-at-once"_L1},
    {"WholeWords"_L1, "whole-words"_L1},
    {"FindReplace"_L1, "many-keys-at-once"_L1},
    {"PrinterSetup"_L1, "keyboard-overlays-on-paper"_L1},
    {"OverlayPreview"_L1, "before-it-is-printed"_L1},
    {"SheetOptions"_L1, "marks-and-paper"_L1},
    {"PrinterCorrection"_L1, "a-printer-that-prints-beside-the-keys"_L1},
    {pleaseCheck, "questions-before-something-is-lost"_L1},
};

} // namespace

std::span<const HelpTopic> helpTopics()
{
    return topics;
}

QString helpAnchor(const QString& form)
{
    const auto* const found = std::ranges::find(topics, form, &HelpTopic::form);
    return found == std::end(topics) ? QString() : QString(found->anchor);
}

} // namespace norvane::shell
