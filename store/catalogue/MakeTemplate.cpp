// make_template <file>: writes the template of a customer's database: all tables, empty.
#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"

#include <QFile>

#include <iostream>

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::cerr << "usage: make_template <file>\n";
        return 2;
    }
    try {
        norvane::store::Database::create(QFile::decodeName(argv[1]), norvane::store::catalogue());
    } catch (const norvane::RuntimeFailure& failure) {
        std::cerr << "make_template: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
