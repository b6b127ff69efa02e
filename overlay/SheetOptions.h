// What the user may add to a sheet.
#pragma once

#include "paper/Sheet.h"

#include <QPageSize>
#include <QString>

#include <array>

namespace norvane::overlay
{

/// All of it is off until the user wants it. The places of the keys are always the same.
struct SheetOptions {
    bool hasKeyOutlines = false;
    bool hasSheetEdge = false;
    bool hasCropMarks = false;
    bool hasCaption = false;
    bool mayTakeTwoPages = false; ///< of a paper that is too small for the keyboard
    paper::SheetFormat format = paper::SheetFormat::A4;

    bool operator==(const SheetOptions&) const = default;
};

/// An option that is on or off.
struct SheetOptionRow {
    const char* name;    ///< of its key in the file and of its control
    const char* caption; ///< with the letter that the Alt key chooses it by
    bool SheetOptions::*member;
};

inline constexpr std::array sheetOptionRows{
    SheetOptionRow{"KeyOutlines", "&Fine outlines of the keys", &SheetOptions::hasKeyOutlines},
    SheetOptionRow{"SheetEdge", "&Edge of the sheet", &SheetOptions::hasSheetEdge},
    SheetOptionRow{"CropMarks", "C&rop marks at its corners", &SheetOptions::hasCropMarks},
    SheetOptionRow{"Caption", "A &line with shop, keyboard, level and date", &SheetOptions::hasCaption},
    SheetOptionRow{"TwoPages", "&Two pages where the paper is too small", &SheetOptions::mayTakeTwoPages},
};

/// "A4", "Letter": for the user and in the file.
[[nodiscard]] QString formatName(paper::SheetFormat format);

[[nodiscard]] QPageSize pageSizeOf(paper::SheetFormat format);

/// Keeps the options of the user of this computer, for all keyboards.
class KeptSheetOptions
{
public:
    /// @param path of an initialisation file, which need not exist.
    explicit KeptSheetOptions(QString path) : m_path(std::move(path)) {}
    /// Those in the user's folder for settings.
    [[nodiscard]] static KeptSheetOptions ofThisUser();

    [[nodiscard]] SheetOptions read() const;
    /// @return false if the file cannot be written.
    [[nodiscard]] bool keep(const SheetOptions& options) const;

private:
    QString m_path;
};

} // namespace norvane::overlay
