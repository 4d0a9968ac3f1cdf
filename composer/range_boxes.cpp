#include "composer/range_boxes.h"

#include "melody/melody.h"

namespace corvana {

RegolaCasella RegolaDi(const CasellaTratto& casella, const TrattoVoce& tratto) {
    if (casella.voce == soprano)
        return casella.ultima ? RegolaCasella{tratto.prima, tratto.note, tratto.ultima}
                              : RegolaCasella{1, tratto.ultima, tratto.prima};
    const long altra = tratto.altraCasella();
    return casella.ultima ? RegolaCasella{altra + 2, tratto.note, tratto.note}
                          : RegolaCasella{1, altra - 1, tratto.prima};
}

}  // namespace corvana
