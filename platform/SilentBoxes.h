// Boxes where nobody is there to read or answer.
#pragma once

#include "platform/Boxes.h"

namespace norvane
{

/// Messages are dropped, and every question gets the answer that loses nothing.
class SilentBoxes : public Boxes
{
public:
    void message(const QString& /*text*/, const QString& /*title*/, BoxIcon /*icon*/) override {}
    bool ask(const QString& /*text*/, const QString& /*title*/, BoxIcon /*icon*/,
             BoxAnswer /*preset*/) override
    {
        return false;
    }
    QString input(const QString& /*prompt*/, const QString& /*title*/, const QString& /*initial*/) override
    {
        return {};
    }
    QString fileToOpen(const FileRequest& /*request*/) override { return {}; }
    QString fileToSave(const FileRequest& /*request*/) override { return {}; }
    void beep() override {}
};

} // namespace norvane
