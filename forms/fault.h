// A run-time fault that a routine doesn't handle itself: it ends the handler that met it, and the
// pump shows its number and description in a box.
#pragma once

#include <stdexcept>
#include <string>

namespace corvana {

class Guasto : public std::runtime_error {
public:
    Guasto(int numero, const std::string& descrizione)
        : std::runtime_error(descrizione), numero_(numero) {}
    int Numero() const { return numero_; }

private:
    int numero_;
};

/// As the boxes show a fault: its number, a line break, its description.
inline std::string TestoGuasto(const Guasto& guasto) {
    return std::to_string(guasto.Numero()) + "\r\n" + guasto.what();
}

constexpr int guastoArgomento = 5;      ///< a value that the operation can't take
constexpr int guastoTraboccamento = 6;  ///< a number too large for where it goes
constexpr int guastoIndice = 9;         ///< an element that isn't there
constexpr int guastoTipo = 13;          ///< a text that should be a number isn't one
constexpr int guastoInterno = 51;       ///< anything that wasn't thrown as a `Guasto`
constexpr int guastoDiscoPieno = 61;
constexpr int guastoFineFile = 62;        ///< a file that ends where more should come
constexpr int guastoDiscoNonPronto = 71;  ///< no medium, or one that doesn't answer
constexpr int guastoProprieta = 380;      ///< a property set to what it can't hold

}  // namespace corvana
