// Tells whether another copy of the program runs, by a lock that the system lets go of with the
// process, however that ends. Logic thread.
#pragma once

#include <string>

namespace corvana {

class IstanzaUnica {
public:
    /// `percorso` is the lock's file. Where it can't be made nothing is locked and the program
    /// runs.
    explicit IstanzaUnica(const std::string& percorso);
    IstanzaUnica(const IstanzaUnica&) = delete;
    IstanzaUnica& operator=(const IstanzaUnica&) = delete;
    ~IstanzaUnica();

    bool AltraIstanza() const { return altra_; }

private:
    int descrittore_;
    bool altra_ = false;
};

}  // namespace corvana
