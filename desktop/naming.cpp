#include "desktop/naming.h"

#include <algorithm>

namespace corvana {

namespace {

const QLatin1String prefisso("nome:");

const Vista* Cerca(const std::vector<std::unique_ptr<Vista>>& viste, const QString& nome) {
    const auto e = std::find_if(viste.begin(), viste.end(),
                                [&](const auto& vista) { return vista->Stato().nome == nome; });
    return e == viste.end() ? nullptr : e->get();
}

}  // namespace

Nominatore::Nominatore(const std::vector<std::unique_ptr<Vista>>& viste) {
    for (const auto& vista : viste) {
        std::vector<const Vista*> etichette;
        for (const QString& parola : vista->Stato().stile)
            if (parola.startsWith(prefisso))
                if (const Vista* etichetta = Cerca(viste, parola.mid(prefisso.size())))
                    etichette.push_back(etichetta);
        if (!etichette.empty()) nominate_.push_back({vista.get(), std::move(etichette)});
    }
    Rinnova();
}

void Nominatore::Rinnova() const {
    for (const Nominata& nominata : nominate_) {
        QStringList nomi;
        for (const Vista* etichetta : nominata.etichette)
            nomi.append(SenzaAccesso(InQt(etichetta->Stato().Caption)).simplified());
        const QString nome = nomi.join(QLatin1Char(' '));
        if (nominata.vista->NomeDetto() != nome) nominata.vista->PonNomeDetto(nome);
    }
}

}  // namespace corvana
