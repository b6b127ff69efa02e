// Makes every file of a register from the factory contents; see Factory.h.
#include "tools/makebank/Factory.h"

#include "tools/bank/Files.h"
#include "tools/bank/Layout.h"
#include "tools/bank/RegisterFile.h"
#include "tools/bank/TextRecords.h"
#include "tools/makebank/FactoryText.h"
#include "tools/makebank/Keyboards.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr int keyLinkFile = 16;
constexpr int keyNumberFile = 17;
constexpr int pluFile = 67;
constexpr int pluPointFile = 71;
constexpr int imageFile = 83; ///< empty until somebody loads a picture into the register
constexpr std::array kinds{Kind{Model::Velmaro, 2, false}, Kind{Model::Velmaro, 2, true},
                           Kind{Model::Velmarn, 3, true}, Kind{Model::Dorvik, 3, true}};

QByteArray resource(const QString& name)
{
    QFile file(u":/factory/%1.txt"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no factory contents " + name.toStdString());
    return file.readAll();
}

/// The contents of this model, otherwise those of all models.
QString contentsName(int file, Model model)
{
    const auto own = u"%1-%2"_s.arg(file).arg(modelWord(model).toLower());
    return QFile::exists(u":/factory/%1.txt"_s.arg(own)) ? own : QString::number(file);
}

class Works
{
public:
    Works(const Register& target, int kindIndex, int plus)
        : m_target(target), m_kindIndex(kindIndex), m_plus(plus)
    {
    }

    void run()
    {
        writeMemory();
        for (const int code : layoutCodes()) {
            if (code != memoryFile && code != newerMemoryCode && m_target.knowsFile(code))
                writeRecords(code, recordsOf(code));
        }
        for (const int file : opaqueFiles())
            writeOpaque(file);
    }

private:
    [[nodiscard]] Columns columns(int file) const { return columnsOf(file, m_target.model); }

    void writeRecords(int file, const Records& records, int layoutCode = 0) const
    {
        const auto layout = columns(layoutCode == 0 ? file : layoutCode);
        RegisterFile result{file, m_target.model, packedLength(layout)};
        QByteArray text;
        for (const auto& record : records)
            text += record.join(',') + "\r\n";
        if (!text.isEmpty())
            result.records = packText(text, layout);
        writeFile(m_target.filePath(file), toBytes(result));
    }

    void writeMemory()
    {
        const int code = m_target.generation == 2 ? memoryFile : newerMemoryCode;
        const auto all =
            readFactoryText(resource(QString::number(memoryFile)), u"52"_s, columns(newerMemoryCode), 0);
        auto memory = all.at(m_kindIndex);
        auto& places = memory[2];
        places = std::max(places, padded(QByteArray::number(m_plus), columns(newerMemoryCode).at(2)));
        memory.resize(static_cast<qsizetype>(columns(code).size()));
        m_memory = memory;
        writeRecords(memoryFile, {memory}, code);
    }

    [[nodiscard]] Records contents(int file) const
    {
        const auto name = contentsName(file, m_target.model);
        return readFactoryText(resource(name), name, columns(file),
                               capacityOf(file, m_target.model, m_memory));
    }

    Records recordsOf(int file)
    {
        switch (file) {
        case keyLinkFile:
            return single(keyboards().links);
        case keyNumberFile:
            return single(keyboards().numbers);
        case pluFile:
            return plus();
        case pluPointFile:
            return points();
        default:
            return contents(file);
        }
    }

    static Records single(const QList<QByteArray>& values)
    {
        Records records;
        for (const auto& value : values)
            records += QByteArrayList{value};
        return records;
    }

    Keyboards keyboards()
    {
        QList<QByteArray> numbers;
        const auto shop = contents(pluFile);
        for (const auto& record : shop)
            numbers += record.first();
        return layOutKeyboards(
            resource(m_target.model == Model::Dorvik ? u"keys-dorvik"_s : u"keys-velmar"_s), numbers);
    }

    /// The shop's articles, cut to the wanted number or continued with numbered variants.
    Records plus() const
    {
        auto records = contents(pluFile);
        const auto shopSize = records.size();
        if (m_plus != 0 && m_plus < shopSize)
            records.resize(m_plus);
        const auto layout = columns(pluFile);
        for (auto i = shopSize; i < m_plus; ++i)
            records += variant(records.at(i % shopSize), i, layout);
        return records;
    }

    static QByteArrayList variant(QByteArrayList record, qsizetype number, const Columns& layout)
    {
        constexpr int firstVariant = 100000;
        record[0] = padded(QByteArray::number(firstVariant + number), layout.at(0));
        record[1] = padded(record.at(1).left(9).trimmed() + ' ' + QByteArray::number(number), layout.at(1));
        return record;
    }

    /// A point for each whole unit of the price, on the levels that have one.
    Records points() const
    {
        Records records;
        const auto articles = plus();
        for (const auto& article : articles)
            records += pointsOf(article);
        return records;
    }

    [[nodiscard]] QByteArrayList pointsOf(const QByteArrayList& article) const
    {
        constexpr int firstPrice = 12;
        constexpr int levels = 5;
        const auto layout = columns(pluPointFile);
        QByteArrayList record{article.first()};
        for (int level = 0; level < levels; ++level) {
            const auto price = article.at(firstPrice + 2 * level).toInt();
            record += padded(QByteArray::number(price / 100), layout.at(static_cast<std::size_t>(level) + 1));
        }
        return record;
    }

    /// Bytes that no tool reads. They differ by register, so that the origin of a copy can be seen.
    void writeOpaque(int file) const
    {
        if (file == imageFile && m_target.generation == 2) {
            writeFile(m_target.filePath(file), {});
            return;
        }
        constexpr int recordLength = 32;
        std::mt19937 random(static_cast<unsigned>(m_target.number * 1000 + file));
        RegisterFile result{file, m_target.model, recordLength};
        const auto length = recordLength * (4 + file);
        for (int i = 0; i < length; ++i)
            result.records += static_cast<char>(random() & 0xFFU);
        writeFile(m_target.filePath(file), toBytes(result));
    }

    const Register& m_target;
    int m_kindIndex;
    int m_plus;
    QByteArrayList m_memory;
};

} // namespace

const Kind& kindOf(int index)
{
    return kinds.at(static_cast<std::size_t>(index));
}

void fillRegister(const Register& target, int kindIndex, int plus)
{
    Works(target, kindIndex, plus).run();
}

} // namespace bank
