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

// MessageLayouts.cpp
[[nodiscard]] const RecordLayout& systemDescriptorLayout();
[[nodiscard]] const RecordLayout& errorMessageLayout();
[[nodiscard]] const RecordLayout& financialReportLayout();
[[nodiscard]] const RecordLayout& employeeReportLayout();
[[nodiscard]] const RecordLayout& logoMessageLayout();
[[nodiscard]] const RecordLayout& validationMessageLayout();
[[nodiscard]] const RecordLayout& checkEndorseMessageLayout();
[[nodiscard]] const RecordLayout& guestCheckMessageLayout();

// StaffLayouts.cpp
[[nodiscard]] const RecordLayout& employeeLayout();
[[nodiscard]] const RecordLayout& jobCodeLayout();
[[nodiscard]] const RecordLayout& payRateLayout();
[[nodiscard]] const RecordLayout& authorityLevelLayout();
[[nodiscard]] const RecordLayout& timePeriodLayout();

// ServiceLayouts.cpp
[[nodiscard]] const RecordLayout& taxRateLayout();
[[nodiscard]] const RecordLayout& serviceModeLayout();
[[nodiscard]] const RecordLayout& memoryAllocationLayout();

// KeyLayouts.cpp
[[nodiscard]] const RecordLayout& functionKeyLayout();
[[nodiscard]] const RecordLayout& keyLinkLayout();
[[nodiscard]] const RecordLayout& numberLookUpLayout();
[[nodiscard]] const RecordLayout& windowLookUpLayout();
[[nodiscard]] const RecordLayout& recipeLayout();
[[nodiscard]] const RecordLayout& cardCategoryLayout();
[[nodiscard]] const RecordLayout& hotListLayout();

} // namespace norvane::records
