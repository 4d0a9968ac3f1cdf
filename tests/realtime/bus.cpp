#include "tests/realtime/bus.h"

#include <poll.h>
#include <stdlib.h>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <systemd/sd-bus.h>

#include <array>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace corvana::prova {

namespace {

constexpr const char* servizio = "org.freedesktop.RealtimeKit1";
constexpr const char* oggetto = "/org/freedesktop/RealtimeKit1";
constexpr const char* variabile = "DBUS_SYSTEM_BUS_ADDRESS";

std::string Indirizzo(const CartellaPropria& cartella) {
    return "unix:path=" + (cartella.Percorso() / "bus").string();
}

Processo::Avvio Demone(const CartellaPropria& cartella) {
    return {.argomenti = {"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address",
                          "--address=" + Indirizzo(cartella)},
            .uscita = cartella.Percorso() / "address"};
}

std::uint64_t LimiteDelProcesso() {
    rlimit limite{};
    getrlimit(RLIMIT_RTTIME, &limite);
    return limite.rlim_max;
}

int Concedi(sd_bus_message* chiamata, void* finto, sd_bus_error* errore) {
    RichiestaPuntuale richiesta;
    sd_bus_message_read(chiamata, "tu", &richiesta.filo, &richiesta.priorita);
    richiesta.limite = LimiteDelProcesso();
    if (!static_cast<RealtimeKitFinto*>(finto)->Rispondi(richiesta))
        return sd_bus_error_set(errore, SD_BUS_ERROR_ACCESS_DENIED, "not for you");
    return sd_bus_reply_method_return(chiamata, "");
}

int DiLimite(sd_bus*, const char*, const char*, const char*, sd_bus_message* risposta, void* finto,
             sd_bus_error*) {
    return sd_bus_message_append(risposta, "x", static_cast<RealtimeKitFinto*>(finto)->Limite());
}

const std::array<sd_bus_vtable, 4> tabella = {
    {SD_BUS_VTABLE_START(0),
     SD_BUS_METHOD("MakeThreadRealtime", "tu", "", Concedi, SD_BUS_VTABLE_UNPRIVILEGED),
     SD_BUS_PROPERTY("RTTimeUSecMax", "x", DiLimite, 0, 0), SD_BUS_VTABLE_END}};

using Bus = std::unique_ptr<sd_bus, decltype(&sd_bus_flush_close_unref)>;

Bus Pubblica(RealtimeKitFinto& finto) {
    sd_bus* bus = nullptr;
    if (sd_bus_open_system(&bus) < 0) throw std::runtime_error("no bus");
    sd_bus_add_object_vtable(bus, nullptr, oggetto, servizio, tabella.data(), &finto);
    if (sd_bus_request_name(bus, servizio, 0) < 0) throw std::runtime_error("name taken");
    return {bus, &sd_bus_flush_close_unref};
}

}  // namespace

BusPrivato::BusPrivato() : demone_(Demone(cartella_)) {
    const auto indirizzo = cartella_.Percorso() / "address";
    // It tells its address once it listens there.
    const bool ascolta = AspettaInCartella(cartella_.Percorso(), demone_, [&] {
        std::error_code errore;
        return std::filesystem::file_size(indirizzo, errore) > 0 && !errore;
    });
    if (!ascolta) throw std::runtime_error("needs dbus-daemon");
    setenv(variabile, Indirizzo(cartella_).c_str(), 1);
}

BusPrivato::~BusPrivato() {
    unsetenv(variabile);
}

RealtimeKitFinto::RealtimeKitFinto(Indole indole)
    : indole_(indole), fine_(eventfd(0, EFD_CLOEXEC)), filo_([this] { Servi(); }) {
    pronto_.get_future().get();
}

RealtimeKitFinto::~RealtimeKitFinto() {
    eventfd_write(fine_, 1);
    filo_.join();
}

bool RealtimeKitFinto::Rispondi(const RichiestaPuntuale& richiesta) {
    richiesta_.set_value(richiesta);
    return indole_.concede;
}

void RealtimeKitFinto::Servi() {
    const Bus bus = Pubblica(*this);
    pronto_.set_value();
    std::array<pollfd, 2> attesi{{{sd_bus_get_fd(bus.get()), POLLIN, 0}, {fine_, POLLIN, 0}}};
    while (attesi[1].revents == 0) {
        while (sd_bus_process(bus.get(), nullptr) > 0) {}
        poll(attesi.data(), attesi.size(), -1);
    }
}

}  // namespace corvana::prova
