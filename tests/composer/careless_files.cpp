#include "tests/composer/careless_files.h"

#include <array>

#include "composer/folder_steps.h"
#include "core/text.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

struct AbitudineArchivio {
    int suCento;
    const char* controllo;
    Fatto fatto = Fatto::Click;
    int massimo = 0;
};

constexpr std::array<AbitudineArchivio, 15> abitudiniArchivio = {{{28, "List1", Fatto::Click, 8},
                                                                  {12, "List1", Fatto::DblClick},
                                                                  {6, "cmdEseguiFile"},
                                                                  {6, "cmbDrive", Fatto::Click, 4},
                                                                  {4, "cmdD"},
                                                                  {7, "cmdRename"},
                                                                  {10, "cmdDelete"},
                                                                  {7, "cmdMkdir"},
                                                                  {3, "cmdChiudi"},
                                                                  {6, "mnuApri"},
                                                                  {3, "mnuSalva"},
                                                                  {3, "mnuSaveAs"},
                                                                  {1, "mnuSalvaA"},
                                                                  {2, "ToolButton3"},
                                                                  {2, "ToolButton5"}}};

constexpr std::array<const char*, 9> nomiScritti = {"a",  "b", "A",   " mine ",   "x?",
                                                    "§1", "",  "a.b", "two words"};

/// Empty for the root.
std::string CartellaDi(const std::string& percorso) {
    return percorso.substr(0, percorso.rfind('/'));
}

}  // namespace

void PonDisco(Banco& banco) {
    banco.globali.CartellaUtente = "/home/u/";
    banco.globali.CartellaDocumenti = "/home/u/Doc/";
    banco.file.supportoRimovibile = "/media/stick/";
    for (const char* cartella : {"/programma/Melodie/Demo", "/home/u/Doc/more", "/media/stick",
                                 "/home/u/empty", "/config"})
        banco.file.CreaCartella(cartella);
    for (const char* nome : {"/home/u/a.mel", "/home/u/Doc/b.MEL", "/media/stick/c.mel",
                             "/programma/Melodie/Demo/demo.mel"})
        banco.file.contenuti[nome] = FileDi(dueVoci);
    banco.file.contenuti["/home/u/broken.mel"] = "";
}

void CambiaDisco(FileInMemoria& file, const Sorte& tra) {
    if (tra(0, 99) < 3)
        file.erroreScrivi = std::array{0, 0, ENOSPC, EROFS}.at(static_cast<std::size_t>(tra(0, 3)));
    if (tra(0, 999) < 5) file.EliminaCartella("/home/u/empty");
}

std::pair<std::string, Evento> GestoDiArchivio(const Sorte& tra) {
    int dado = tra(0, 99);
    const auto* scelta = abitudiniArchivio.begin();
    while (dado >= scelta->suCento && scelta + 1 != abitudiniArchivio.end())
        dado -= (scelta++)->suCento;
    Evento e;
    e.fatto = scelta->fatto;
    e.codice = bottoneSinistro;
    e.valore = tra(0, scelta->massimo);
    return {scelta->controllo, e};
}

std::string NomeScritto(const Sorte& tra) {
    return nomiScritti.at(static_cast<std::size_t>(tra(0, nomiScritti.size() - 1)));
}

std::string DifettoArchivio(const Banco& banco, const frmComposer& finestra) {
    const PannelloFile& p = finestra.archivio;
    const std::string& percorso = banco.globali.percorsoCorrente;
    if (!percorso.starts_with('/') || !percorso.ends_with('/')) return "the folder " + percorso;
    const bool elencata = !p.List1.List->empty();
    if (elencata && p.lblPercorso.Caption() != Minuscolo(percorso))
        return "rows of " + p.lblPercorso.Caption() + " in " + percorso;
    if (elencata && !p.riempiDrive && !p.cmbDrive.List->empty() &&
        p.cmbDrive.ListIndex() != RadiceDi(p.cmbDrive.List(), percorso))
        return "the root " + p.cmbDrive.Text() + " of " + percorso;
    for (const auto& [nome, byte] : banco.file.contenuti)
        if (!CartellaDi(nome).empty() && !banco.file.cartelle.contains(CartellaDi(nome)))
            return "a file in a folder that isn't there: " + nome;
    return {};
}

}  // namespace corvana::prova
