#include "desktop/naming.h"

#include <algorithm>

namespace corvana {

namespace {

const QLatin1String prefisso("nome:"), prefissoConsiglio("consiglio:");

const Vista* Cerca(const std::vector<std::unique_ptr<Vista>>& viste, const QString& nome) {
    const auto e = std::find_if(viste.begin(), viste.end(),
                                [&](const auto& vista) { return vista->Stato().nome == nome; });
    return e == viste.end() ? nullptr : e->get();
}

}  // namespace

Nominatore::Nominatore(const std::vector<std::unique_ptr<Vista>>& viste) {
    for (const auto& vista : viste) {
        std::vector<Etichetta> etichette;
        for (const QString& parola : vista->Stato().stile)
            for (const QLatin1String& inizio : {prefisso, prefissoConsiglio})
                if (parola.startsWith(inizio))
                    if (const Vista* etichetta = Cerca(viste, parola.mid(inizio.size())))
                        etichette.push_back({etichetta, inizio == prefissoConsiglio});
        if (!etichette.empty()) nominate_.push_back({vista.get(), std::move(etichette)});
    }
    Rinnova();
}

void Nominatore::Rinnova() const {
    for (const Nominata& nominata : nominate_) {
        QStringList nomi;
        for (const Etichetta& etichetta : nominata.etichette) {
            const Aspetto& detta = etichetta.vista->Stato();
            nomi.append(etichetta.consiglio ? InQt(detta.ToolTipText)
                                            : SenzaAccesso(InQt(detta.Caption)).simplified());
        }
        const QString nome = nomi.join(QLatin1Char(' '));
        if (nominata.vista->NomeDetto() != nome) nominata.vista->PonNomeDetto(nome);
    }
}

}  // namespace corvana
