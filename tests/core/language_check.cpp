#include "tests/core/language_check.h"

#include <array>

#include "core/language.h"
#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

constexpr std::array cosePerRiga = {
    Testo(0, "frmLetta"), Testo(1, "scritta"), Consiglio(2, "scritta"), Riga(3, "elenco", 1),
    Bersaglio{4, Cosa::Stringa, {}, 0, &TestiLingua::TxtMelodiaIntera}};

struct FinestraLetta : Form {
    FinestraLetta() : Form("frmLetta") { elenco.List = Righe(2, ""); }
    Etichetta scritta{*this, "scritta"};
    Lista elenco{*this, "elenco"};
};

/// A window on which language files are applied.
struct BancoLetto : Banco {
    FinestraLetta finestra;
    using Testi = std::array<std::string, cosePerRiga.size()>;

    BancoLetto() { globali.PercorsoLingua = "/programma/langit.csv"; }
    /// As it was at first.
    void Svuota() {
        finestra.Caption = "";
        finestra.scritta.Caption = "";
        finestra.scritta.ToolTipText = "";
        finestra.elenco.List = Righe(2, "");
        globali.testi.TxtMelodiaIntera = "";
    }
    Testi Applica(std::string byte) {
        file.contenuti[globali.PercorsoLingua] = std::move(byte);
        riquadri.messaggi.clear();
        UpdateString(Tutto(), finestra, cosePerRiga);
        return {finestra.Caption(), finestra.scritta.Caption(), finestra.scritta.ToolTipText(),
                finestra.elenco.List()[1], globali.testi.TxtMelodiaIntera};
    }
    bool Guasta() const { return !riquadri.messaggi.empty(); }
};

std::string FileCheDice(const BancoLetto::Testi& testi) {
    std::string byte;
    for (std::size_t id = 0; id < testi.size(); ++id)
        byte += std::to_string(id) + ";frmLetta;" + testi[id] + "\r\n";
    return byte;
}

}  // namespace

std::string ControllaLingua(std::string_view byte) {
    const std::string file(byte);
    // Making one takes longer than all that is done with it.
    static BancoLetto uno, altro;
    uno.Svuota();
    altro.Svuota();
    const auto testi = uno.Applica(file);
    const bool guasta = uno.Guasta();
    if (uno.riquadri.messaggi.size() > 1) return "more than one box";
    if (uno.Applica(file) != testi || uno.Guasta() != guasta) return "the second time otherwise";
    for (const std::string& testo : testi)
        if (testo.find_first_of(";\n") != std::string::npos) return "a text has what parts texts";
    if (altro.Applica(FileCheDice(testi)) != testi || altro.Guasta())
        return "what is written is read otherwise";
    const std::string fine = file.empty() || file.ends_with('\n') ? "" : "\n";
    if (altro.Applica(file + fine + "1;frmLetta;last\n")[1] != "last" && !guasta)
        return "a row behind whole ones isn't read";
    return altro.Guasta() == guasta ? "" : "a fault depends on what stands behind it";
}

}  // namespace corvana::prova
