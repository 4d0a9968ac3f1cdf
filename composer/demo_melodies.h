// The demonstration melodies in a folder of the user's own, where they can be changed and others be
// saved beside them. They are laid there once, as a whole; what the user makes of them is left
// alone. Where there is no such folder, the program's own serves, which may be read only. Logic
// thread.
#pragma once

#include <string>

#include "core/globals.h"

namespace corvana {

class MelodieDemo {
public:
    /// All must outlive it.
    MelodieDemo(ArchivioFile& file, Impostazioni& impostazioni, const Globali& globali)
        : file_(file), impostazioni_(impostazioni), globali_(globali) {}

    /// Lays them when that was never done. Returns the folder to begin in, with its separator.
    std::string AllApertura();
    /// Lays them again when the folder is empty or gone. Returns the folder that has them.
    std::string ARichiesta();
    /// The folder is the program's own.
    bool DelProgramma(const std::string& cartella) const;

private:
    bool Deponi();
    bool Copia(const std::string& dove);
    void Svuota(const std::string& cartella);
    void Sgombera();
    std::string Propria() const;
    std::string Casa() const;
    std::string DellUtente() const;
    std::string Provvisoria() const;

    ArchivioFile& file_;
    Impostazioni& impostazioni_;
    const Globali& globali_;
};

}  // namespace corvana
