#include "composer/demo_melodies.h"

#include "composer/folder_steps.h"
#include "melody/names.h"

namespace corvana {

namespace {

/// The setting that tells that they were laid, and where.
constexpr const char* chiave = "DemoDir";

}  // namespace

std::string MelodieDemo::Propria() const {
    return globali_.CartellaProgramma + "/Melodie/Demo/";
}

std::string MelodieDemo::Casa() const {
    return globali_.CartellaDocumenti + "Corvana/";
}

std::string MelodieDemo::DellUtente() const {
    return Casa() + "Melodie/Demo/";
}

/// Where they are put together, beside their place.
std::string MelodieDemo::Provvisoria() const {
    return Casa() + "Melodie/Demo.nuova/";
}

bool MelodieDemo::DelProgramma(const std::string& cartella) const {
    return ConSeparatore(cartella) == Propria();
}

std::string MelodieDemo::AllApertura() {
    if (globali_.CartellaDocumenti.empty()) return Propria();
    const bool ceGia = file_.EsisteCartella(DellUtente());
    if (!impostazioni_.Contiene(chiave)) {
        if (!ceGia) return Deponi() ? DellUtente() : Propria();
        impostazioni_.ScriviValore(chiave, DellUtente());
    }
    return ceGia ? DellUtente() : Propria();
}

std::string MelodieDemo::ARichiesta() {
    if (globali_.CartellaDocumenti.empty()) return Propria();
    const bool ceQualcosa = !file_.Elenca(DellUtente()).empty();
    return ceQualcosa || Deponi() ? DellUtente() : Propria();
}

/// A folder that is empty gives its place to the new one; one that isn't keeps it.
bool MelodieDemo::Deponi() {
    Svuota(Provvisoria());
    if (!Copia(Provvisoria()) || file_.Rinomina(Provvisoria(), DellUtente()) != 0) {
        Sgombera();
        return false;
    }
    impostazioni_.ScriviValore(chiave, DellUtente());
    return true;
}

bool MelodieDemo::Copia(const std::string& dove) {
    bool qualcuna = false;
    for (const VoceCartella& voce : file_.Elenca(Propria())) {
        if (voce.cartella || !NomeDaFile(voce.nome)) continue;
        if (!qualcuna && file_.CreaCartella(dove) != 0) return false;
        qualcuna = true;
        std::string byte;
        if (file_.Leggi(Propria() + voce.nome, byte) != 0 ||
            file_.ScriviAtomico(dove + voce.nome, byte) != 0)
            return false;
    }
    return qualcuna;
}

void MelodieDemo::Svuota(const std::string& cartella) {
    for (const VoceCartella& voce : file_.Elenca(cartella))
        if (!voce.cartella) file_.Elimina(cartella + voce.nome);
}

/// Nothing of what was begun is left; folders that hold something else stay.
void MelodieDemo::Sgombera() {
    Svuota(Provvisoria());
    for (const std::string& cartella : {Provvisoria(), Casa() + "Melodie/", Casa()})
        file_.EliminaCartella(cartella);
}

}  // namespace corvana
