#include "making/order_scores.h"

#include "numbers/rounding.h"

#include <algorithm>

namespace dorvan {

FloatTable ScoreDenominators(const FloatTable& distances) {
    FloatTable denominators = distances;
    for (float& cell : denominators.Cells()) cell = cell + 1.0F;
    return denominators;
}

ByteTable MakeByteMatrix(const FloatTable& distances, float coefficient) {
    ByteTable bytes(distances.Rows(), distances.Columns());
    if (coefficient == 0) return bytes;
    const auto convert = [coefficient](float distance) {
        const float product = std::min(distance, 255.0F) * coefficient;
        return RoundToByte(double(product));
    };
    std::transform(distances.Cells().begin(), distances.Cells().end(), bytes.Cells().begin(), convert);
    return bytes;
}

FloatTable UmDenominators(const ByteTable& bytes) {
    FloatTable denominators(bytes.Rows(), bytes.Columns());
    std::transform(bytes.Cells().begin(), bytes.Cells().end(), denominators.Cells().begin(),
                   [](std::uint8_t byte) { return float(byte) + 1.0F; });
    return denominators;
}

double BaseOfGeneration(const ByteTable& bytes, const Order& order) {
    const std::int32_t n = bytes.Rows();
    double sum = 0;
    for (std::int32_t i = 1; i < n; ++i) {
        const std::uint8_t* row = bytes.Row(order(i));
        for (std::int32_t j = i + 1; j <= n; ++j) {
            const double difference = double(order(j) - order(i));
            sum += difference * difference / double(row[order(j) - 1] + 1);
        }
    }
    return sum / (double(n) * double(n) / 2.0);
}

} // namespace dorvan
