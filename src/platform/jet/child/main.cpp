// lecteur-jet FILE TABLE...: writes the rows of tables of a Jet 3 or Jet 4 file to the standard output, in the form
// that JetStream.h describes.
//
// The library crashes on damaged files. So it works in a process of its own, which takes neither the memory nor the time
// of the program that waits for it.

#include "Book.h"
#include "JetStream.h"
#include "Output.h"
#include "Table.h"

#include <sys/resource.h>

#include <cstdlib>
#include <new>

using namespace platform::jet;

namespace {

constexpr rlim_t kAddressSpace = rlim_t(512) << 20U;
constexpr rlim_t kCpuSeconds = 60;

void limit(decltype(RLIMIT_CPU) resource, rlim_t value) {
    const rlimit limits{value, value};
    setrlimit(resource, &limits);
}

void limitResources() {
    limit(RLIMIT_CPU, kCpuSeconds);
    limit(RLIMIT_CORE, 0);
#ifndef __SANITIZE_ADDRESS__ // which reserves terabytes for its own books
    limit(RLIMIT_AS, kAddressSpace);
#endif
}

/// What the library looks up there would change the texts that it gives, or the file that it opens.
void clearEnvironment() {
    for (const char *name : {"MDBICONV", "MDBOPTS", "MDBPATH", "MDB_JET3_CHARSET"}) {
        unsetenv(name);
    }
}

void readBook(const char *path, const std::vector<std::string> &names, Output &output) {
    Book book(path);
    const std::vector<std::unique_ptr<Table>> tables = openTables(book, names);
    std::uint64_t rows = 0;
    for (const auto &table : tables) {
        rows += table->rowCount();
    }
    output.begin(rows);
    for (const auto &table : tables) {
        output.table(table->name(), table->columns());
        table->forEachRow([&](const std::vector<Value> &values) { output.row(values); });
    }
    output.end();
}

} // namespace

int main(int argc, char **argv) {
    if (argc < 2) {
        return kWrongArguments;
    }
    limitResources();
    clearEnvironment();
    Output output;
    try {
        readBook(argv[1], std::vector<std::string>(argv + 2, argv + argc), output);
        return kReadWhole;
    } catch (const std::bad_alloc &) {
        output.failure("Le fichier est endommagé : il demande trop de mémoire.");
    } catch (const std::exception &error) {
        output.failure(error.what());
    }
    return kFailed;
}
