// What the careless user does to the list of melodies, the disk that he has, and what must hold of
// both whenever the logic waits.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "composer/composer.h"
#include "tests/support/rig.h"

namespace corvana::prova {

using Sorte = std::function<int(int, int)>;  ///< draws a number of a range, both ends included

/// A home with documents, the program's demonstration melodies, a medium, folders and melodies.
void PonDisco(Banco& banco);

/// Now and then the disk fills up, or a folder goes that another program has deleted.
void CambiaDisco(FileInMemoria& file, const Sorte& tra);

/// A control of the list and what is done to it.
std::pair<std::string, Evento> GestoDiArchivio(const Sorte& tra);

/// What he types where a name is asked for.
std::string NomeScritto(const Sorte& tra);

/// What is wrong; empty for nothing.
std::string DifettoArchivio(const Banco& banco, const frmComposer& finestra);

}  // namespace corvana::prova
