// The serial line to the modem: what dialling and hanging up need.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace norvane
{

/// Interface of a serial port.
class SerialLine
{
public:
    SerialLine() = default;
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;
    virtual ~SerialLine() = default;

    /// @p settings is speed and frame, as "9600,N,8,1".
    virtual void setSettings(const QString& settings) = 0;
    /// @p number counts from 1. The platform says which device it is.
    virtual void setPort(int number) = 0;
    [[nodiscard]] virtual bool isOpen() const = 0;
    /// @return false when the port cannot be opened.
    virtual bool open() = 0;
    virtual void close() = 0;
    /// Bytes that were received and not taken yet.
    [[nodiscard]] virtual int inputCount() = 0;
    virtual void clearInput() = 0;
    /// Sends @p text as single bytes. @return false when the port is closed or refuses.
    virtual bool send(const QString& text) = 0;
    /// Takes everything that was received.
    virtual QString takeInput() = 0;
};

/// The machine's serial ports. @p deviceOfPort names the devices of ports 1, 2, ... (a test's pseudo
/// terminal, a dealer's USB adapter); for empty entries the platform's names are used.
[[nodiscard]] std::unique_ptr<SerialLine> makeSerialLine(const QStringList& deviceOfPort = {});

} // namespace norvane
