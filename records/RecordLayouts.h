// The layouts of all register files, one unit for each group of files.
#pragma once

#include "records/RecordLayout.h"

namespace norvane::records
{

// ProductLayouts.cpp
[[nodiscard]] const RecordLayout& groupLayout();
[[nodiscard]] const RecordLayout& productMixLayout();
[[nodiscard]] const RecordLayout& pluStatusLayout();
[[nodiscard]] const RecordLayout& pluLayout();
[[nodiscard]] const RecordLayout& mixAndMatchLayout();
[[nodiscard]] const RecordLayout& pluPointsLayout();

// SystemOptionLayouts.cpp
[[nodiscard]] const RecordLayout& generalOptionLayout();
[[nodiscard]] const RecordLayout& taxOptionLayout();
[[nodiscard]] const RecordLayout& drawerOptionLayout();
[[nodiscard]] const RecordLayout& trainingOptionLayout();
[[nodiscard]] const RecordLayout& levelOptionLayout();
[[nodiscard]] const RecordLayout& checkTrackingLayout();

// PrintOptionLayouts.cpp
[[nodiscard]] const RecordLayout& kitchenPrintLayout();
[[nodiscard]] const RecordLayout& validationLayout();
[[nodiscard]] const RecordLayout& generalPrintLayout();
[[nodiscard]] const RecordLayout& reportPrintLayout();
[[nodiscard]] const RecordLayout& reportOptionLayout();
[[nodiscard]] const RecordLayout& timeKeepingLayout();
[[nodiscard]] const RecordLayout& journalDetailLayout();

} // namespace norvane::records
