// A program that imports the PLUs of the folder that it is given, to be killed in the middle of it.
#include "records/FileProcedures.h"
#include "tests/support/RecordingBoxes.h"

#include <QDir>

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    norvane::ApplicationValues values;
    values.appPath = QString::fromLocal8Bit(argv[1]);
    values.customerPath = values.appPath;
    values.databasePath = QDir(values.appPath).filePath(QStringLiteral("velmar.mdb"));
    QDir::setCurrent(values.appPath);
    norvane::test::RecordingBoxes boxes;
    norvane::records::importRegisterFile(67, {values, boxes, [](const QString&) {
                                                  return true;
                                              }});
    return 0;
}
