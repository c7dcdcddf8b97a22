#include "tests/fuzz/epreuves.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, std::size_t taille)
{
    EPREUVE({octets, static_cast<qsizetype>(taille)});
    return 0;
}
