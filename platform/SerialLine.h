// The serial line to the modem, with just the operations that dialling and hanging up need.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace norvane
{

class SerialLine
{
public:
    SerialLine() = default;
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;
    virtual ~SerialLine() = default;

    /// @p settings is speed and frame, as "9600,N,8,1".
    virtual void setSettings(const QString& settings) = 0;
    /// @p number counts from 1. Which device a number stands for is the platform's matter.
    virtual void setPort(int number) = 0;
    [[nodiscard]] virtual bool isOpen() const = 0;
    /// @return false when the port cannot be opened.
    virtual bool open() = 0;
    virtual void close() = 0;
    /// Number of bytes that have come in and were not yet taken.
    [[nodiscard]] virtual int inputCount() = 0;
    virtual void clearInput() = 0;
    /// Sends @p text as single bytes. @return false when the port is closed or refuses.
    virtual bool send(const QString& text) = 0;
    /// Takes all that has come in.
    virtual QString takeInput() = 0;
};

/// The real line on the machine's serial ports. @p deviceOfPort overrides the platform's device names for
/// ports 1, 2, ... (a test's pseudo terminal, a dealer's USB adapter); empty entries keep the platform's.
[[nodiscard]] std::unique_ptr<SerialLine> makeSerialLine(const QStringList& deviceOfPort = {});

} // namespace norvane
