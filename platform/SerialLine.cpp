// The real serial line, on Qt's serial port; see SerialLine.h.
#include "platform/SerialLine.h"

#include "platform/Windows1252.h"

#include <QSerialPort>
#include <QStringList>

namespace norvane
{
namespace
{

/// Long enough for a modem command at the slowest speed.
constexpr int sendTimeoutMs = 3000;

QString platformDevice(int number)
{
#ifdef Q_OS_WIN
    return QStringLiteral("COM%1").arg(number);
#else
    return QStringLiteral("/dev/ttyS%1").arg(number - 1);
#endif
}

QSerialPort::Parity parityOf(QStringView letter)
{
    if (letter.compare(u"E", Qt::CaseInsensitive) == 0)
        return QSerialPort::EvenParity;
    if (letter.compare(u"O", Qt::CaseInsensitive) == 0)
        return QSerialPort::OddParity;
    return QSerialPort::NoParity;
}

class QtSerialLine final : public SerialLine
{
public:
    explicit QtSerialLine(QStringList deviceOfPort) : m_deviceOfPort(std::move(deviceOfPort)) {}

    void setSettings(const QString& settings) override
    {
        m_settings = settings;
        if (isOpen())
            applySettings();
    }

    void setPort(int number) override { m_number = number; }

    [[nodiscard]] bool isOpen() const override { return m_port.isOpen(); }

    bool open() override
    {
        if (isOpen())
            return false;
        m_port.setPortName(device());
        if (!m_port.open(QIODevice::ReadWrite))
            return false;
        applySettings();
        return true;
    }

    void close() override
    {
        if (isOpen())
            m_port.close();
    }

    [[nodiscard]] int inputCount() override
    {
        poll();
        return static_cast<int>(m_port.bytesAvailable());
    }

    void clearInput() override
    {
        if (!isOpen())
            return;
        poll();
        m_port.clear(QSerialPort::Input);
    }

    bool send(const QString& text) override
    {
        if (!isOpen())
            return false;
        const QByteArray bytes = toWindows1252(text);
        return m_port.write(bytes) == bytes.size() &&
               (m_port.bytesToWrite() == 0 || m_port.waitForBytesWritten(sendTimeoutMs));
    }

    QString takeInput() override
    {
        poll();
        return isOpen() ? fromWindows1252(m_port.readAll()) : QString();
    }

private:
    [[nodiscard]] QString device() const
    {
        const QString chosen = m_deviceOfPort.value(m_number - 1);
        return chosen.isEmpty() ? platformDevice(m_number) : chosen;
    }

    /// A pseudo terminal and some adapters lack a setting; they refuse it and work without.
    void applySettings()
    {
        const auto words = m_settings.split(u',');
        if (words.size() != 4)
            return;
        m_port.setBaudRate(words[0].toInt());
        m_port.setParity(parityOf(words[1]));
        m_port.setDataBits(static_cast<QSerialPort::DataBits>(words[2].toInt()));
        m_port.setStopBits(words[3] == u"2" ? QSerialPort::TwoStop : QSerialPort::OneStop);
    }

    /// No events are handled while the program waits for the modem, so the port must be asked.
    void poll()
    {
        if (isOpen())
            m_port.waitForReadyRead(0);
    }

    QSerialPort m_port;
    QStringList m_deviceOfPort;
    QString m_settings = QStringLiteral("9600,N,8,1");
    int m_number = 1;
};

} // namespace

std::unique_ptr<SerialLine> makeSerialLine(const QStringList& deviceOfPort)
{
    return std::make_unique<QtSerialLine>(deviceOfPort);
}

} // namespace norvane
