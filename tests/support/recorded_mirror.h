// A mirror that writes down what it is told.
#pragma once

#include <string>
#include <vector>

#include "forms/form.h"

namespace corvana::prova {

class SpecchioRegistrato final : public Specchio {
public:
    struct Cambio {
        std::string controllo;
        Nome nome;
        Valore valore;
        bool operator==(const Cambio&) const = default;
    };

    bool registra = false;  ///< write changes down too: a long run makes millions of them
    std::vector<Cambio> cambi;
    std::vector<std::string> fuochi;
    std::vector<std::string> mostrate;  ///< names, a modal one behind "modal "
    std::vector<std::string> chiuse;
    std::vector<std::string> trascinate;
    std::vector<std::string> menuAperti;
    std::vector<std::string> aiuti;   ///< context and file of each help that was asked for
    std::vector<std::string> lingue;  ///< Yes and No and the help's file of each that was chosen
    std::vector<std::uint32_t> identitaChiuse;  ///< as the closed windows had it at that moment

    void Mostra(const Form& form, bool modale) override {
        mostrate.push_back((modale ? "modal " : "") + form.Name);
    }
    void Cambiato(const Controllo& controllo, Nome nome, const Valore& valore) override {
        if (registra) cambi.push_back({controllo.Name, nome, valore});
    }
    void Fuoco(const Controllo& controllo) override { fuochi.push_back(controllo.Name); }
    void Trascina(const Form& form) override { trascinate.push_back(form.Name); }
    void PopupMenu(const Controllo& menu) override { menuAperti.push_back(menu.Name); }
    void Aiuto(const Form& form, const std::string& file) override {
        aiuti.push_back(std::to_string(form.HelpContextID()) + ' ' + file);
    }
    void CambiaLingua(const ParoleSchermo& parole, const std::string& aiuto) override {
        lingue.push_back(parole.parSi + ' ' + parole.parNo + ' ' + aiuto);
    }
    void Chiudi(const Form& form) override {
        chiuse.push_back(form.Name);
        identitaChiuse.push_back(form.Identita());
    }
};

}  // namespace corvana::prova
