#include "tests/core/temporary_folder.h"

#include <stdlib.h>

#include <iterator>
#include <stdexcept>

namespace corvana::prova {

CartellaProvvisoria::CartellaProvvisoria() {
    std::string modello = (std::filesystem::temp_directory_path() / "corvana-XXXXXX").string();
    if (!mkdtemp(modello.data())) throw std::runtime_error("no temporary folder");
    cartella_ = modello;
}

CartellaProvvisoria::~CartellaProvvisoria() {
    std::error_code nessuno;
    std::filesystem::remove_all(cartella_, nessuno);
}

int CartellaProvvisoria::Quanti() const {
    using Iteratore = std::filesystem::directory_iterator;
    return static_cast<int>(std::distance(Iteratore(cartella_), Iteratore()));
}

}  // namespace corvana::prova
