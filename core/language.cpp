#include "core/language.h"

#include "core/text.h"
#include "forms/fault.h"

namespace corvana {

namespace {

void Applica(Globali& globali, const Bersaglio& bersaglio, const std::string& testo, Form& form) {
    if (bersaglio.cosa == Cosa::Stringa) {
        globali.testi.*bersaglio.stringa = testo;
        return;
    }
    Controllo* controllo = form.Trova(bersaglio.controllo);
    if (!controllo) return;
    if (bersaglio.cosa == Cosa::Testo) controllo->PonTesto(testo);
    if (bersaglio.cosa == Cosa::Seguito)
        controllo->PonTesto(globali.testi.*bersaglio.stringa + "\r\n\r\n" + testo);
    if (bersaglio.cosa == Cosa::Consiglio) controllo->ToolTipText = testo;
    if (bersaglio.cosa == Cosa::Riga)
        dynamic_cast<Lista&>(*controllo).PonRiga(bersaglio.elemento, testo);
}

/// Takes the first line off, which ends with a line feed or with the text.
std::string_view PrendiLinea(std::string_view& resto) {
    const std::size_t fine = resto.find('\n');
    std::string_view linea = resto.substr(0, fine);
    resto.remove_prefix(fine == std::string_view::npos ? resto.size() : fine + 1);
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    return linea;
}

void ApplicaLinea(const Ambiente& ambiente, std::string_view linea, Form& form, Bersagli bersagli) {
    const auto campi = Dividi(linea, ';');
    if (Minuscolo(campi.at(1)) != Minuscolo(form.Name)) return;
    ApplicaRiga(ambiente.globali, campi.at(0), campi.at(2), form, bersagli);
}

}  // namespace

bool FileLinguaEsiste(const Ambiente& ambiente) {
    return ambiente.file.Esiste(ambiente.globali.PercorsoLingua);
}

void UpdateString(const Ambiente& ambiente, Form& form, Bersagli bersagli) {
    try {
        std::string contenuto;
        if (const int errore =
                ambiente.file.Leggi(ambiente.globali.PercorsoLingua, contenuto, limiteTesti))
            throw Guasto(errore, "read error");
        for (std::string_view resto = contenuto; !resto.empty();)
            ApplicaLinea(ambiente, PrendiLinea(resto), form, bersagli);
    } catch (const std::exception&) {
        ambiente.riquadri.MsgBox("Error Reading file!!!");
    }
}

void ApplicaRiga(Globali& globali, const std::string& id, const std::string& testo, Form& form,
                 Bersagli bersagli) {
    const long numero = NumeroIntero(id, -32768, 32767);
    for (const Bersaglio& bersaglio : bersagli)
        if (bersaglio.id == numero) Applica(globali, bersaglio, testo, form);
}

}  // namespace corvana
