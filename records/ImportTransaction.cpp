// See ImportTransaction.h.
#include "records/ImportTransaction.h"

#include "base/LossQuestion.h"
#include "platform/RuntimeFailure.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

void keepOrPutBack(store::Transaction& transaction, Boxes& boxes, const QString& failure,
                   const QString& question)
{
    if (!question.isEmpty() && askBeforeLoss(boxes, failure + u"\r\r"_s + question)) {
        transaction.commit();
    } else {
        transaction.rollBack();
    }
}

} // namespace

void importOrPutBack(store::Transaction& transaction, Boxes& boxes, const std::function<QString()>& question,
                     const std::function<void()>& import)
{
    try {
        import();
    } catch (const RuntimeFailure& failure) {
        // A full disk can have ended the transaction already: then nothing is left to keep.
        if (transaction.isOpen())
            keepOrPutBack(transaction, boxes, failure.text(), question());
        throw;
    }
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
