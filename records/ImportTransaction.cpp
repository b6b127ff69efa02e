// See ImportTransaction.h.
#include "records/ImportTransaction.h"

#include "base/LossQuestion.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/CommitOnExit.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

QString textOf(const RuntimeFailure& failure, const QString& question)
{
    return question.isEmpty() ? QString() : failure.text() + u"\r\r"_s + question;
}

void keepOrPutBack(store::CommitOnExit& transaction, Boxes& boxes, const QString& text,
                   const std::function<void()>& commit)
{
    if (!text.isEmpty() && askBeforeLoss(boxes, text)) {
        commit();
    } else {
        transaction.rollBack();
    }
}

} // namespace

void importOrPutBack(store::CommitOnExit& transaction, Boxes& boxes, const std::function<QString()>& question,
                     const std::function<void()>& import, const std::function<void()>& commit)
{
    try {
        import();
    } catch (const RuntimeFailure& failure) {
        // A full disk can have ended the transaction already: then nothing is left to keep.
        if (transaction.isOpen())
            keepOrPutBack(transaction, boxes, textOf(failure, question()), commit);
        throw;
    }
}

void importOrPutBack(store::CommitOnExit& transaction, Boxes& boxes, const std::function<QString()>& question,
                     const std::function<void()>& import)
{
    importOrPutBack(transaction, boxes, question, import, [&] { transaction.commit(); });
}

QString keepRecordsQuestion(const QString& textName, qint64 read, qint64 former)
{
    if (read == 0 && former == 0)
        return {};
    return u"%1 was read only in part. Keep what was read, %2 records?\r"
           u"No puts the table back as it was, with %3 records."_s.arg(textName)
               .arg(read)
               .arg(former);
}

} // namespace norvane::records
