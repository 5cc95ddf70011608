#include "making/ravelin_operators.h"

#include "numbers/rounding.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dorvan {

namespace {

std::int32_t Count(OrderRow order) { return static_cast<std::int32_t>(order.size()); }

void Exchange(OrderRow order, std::int32_t a, std::int32_t b) {
    std::swap(order[std::size_t(a - 1)], order[std::size_t(b - 1)]);
}

std::int32_t DrawPlace(RandomSource& random, OrderRow order) {
    return RandomInRange(random, 1, Count(order));
}

std::int32_t DrawOtherPlace(RandomSource& random, OrderRow order, std::int32_t place) {
    std::int32_t other = place;
    while (other == place) other = DrawPlace(random, order);
    return other;
}

// The left place moves by two and the right one by one: no plain reversal.
void SequenceChange(RandomSource& random, OrderRow order) {
    std::int32_t a = DrawPlace(random, order);
    std::int32_t b = DrawOtherPlace(random, order, a);
    if (a > b) std::swap(a, b);
    const std::int32_t steps = (b - a + 1) / 2;
    for (std::int32_t k = 0; k < steps; ++k) Exchange(order, a + 2 * k, b - k);
}

// Cuts a fragment of up to half of the order out and puts it in again, at place s of what is left.
void FragmentTransfer(RandomSource& random, OrderRow order) {
    const std::int32_t n = Count(order);
    const std::int32_t a = DrawPlace(random, order);
    const std::int32_t length = RandomInRange(random, 1, n / 2);
    const std::int32_t b = std::min(a + length - 1, n);
    const std::int32_t cut = b - a + 1;
    const auto first = order.begin();
    std::rotate(first + (a - 1), first + b, order.end()); // the fragment stands last now
    const std::int32_t s = RandomInRange(random, 1, n - cut);
    std::rotate(first + (s - 1), first + (n - cut), order.end());
}

// Between the two places stands a draw that is dropped.
void SingleTransfer(RandomSource& random, OrderRow order) {
    const std::int32_t a = DrawPlace(random, order);
    random.Skip(1);
    MoveElement(order, a, DrawOtherPlace(random, order, a));
}

void RemoteConversion(RandomSource& random, OrderRow order) {
    const std::int32_t a = DrawPlace(random, order);
    const std::int32_t b = DrawPlace(random, order);
    Exchange(order, a, b);
}

void NeighbourConversion(RandomSource& random, OrderRow order) {
    const std::int32_t a = DrawPlace(random, order);
    Exchange(order, a, std::min(a + 1, Count(order)));
}

using Step = void (*)(RandomSource&, OrderRow);

void Some(Step step, RandomSource& random, OrderRow order) {
    const std::int32_t count = RandomInRange(random, 1, 19);
    for (std::int32_t k = 0; k < count; ++k) step(random, order);
}

} // namespace

void MoveElement(OrderRow order, std::int32_t a, std::int32_t b) {
    const std::int16_t moved = order[std::size_t(a - 1)];
    const auto first = order.begin();
    if (a > b)
        std::copy_backward(first + (b - 1), first + (a - 1), first + a);
    else
        std::copy(first + a, first + b, first + (a - 1));
    order[std::size_t(b - 1)] = moved;
}

int ChooseOperator(RandomSource& random, const OrderingOptions& options) {
    const std::array<std::int16_t, 7> weights = {options.SequenceChange,          options.FragmentTransfer,
                                                 options.SomeSingleTransfers,     options.SingleTransfer,
                                                 options.SomeRemoteConversions,   options.RemoteConversion,
                                                 options.SomeNeighbourConversions};
    const std::int16_t r = NarrowToInt16(RandomInRange(random, 1, options.UmWeightTotal));
    std::int32_t sum = 0;
    int which = 1;
    for (const std::int16_t weight : weights) {
        sum += weight;
        if (sum >= r) return which;
        ++which;
    }
    return which;
}

void ApplyOperator(int which, RandomSource& random, OrderRow order) {
    switch (which) {
    case 1: return SequenceChange(random, order);
    case 2: return FragmentTransfer(random, order);
    case 3: return Some(SingleTransfer, random, order);
    case 4: return SingleTransfer(random, order);
    case 5: return Some(RemoteConversion, random, order);
    case 6: return RemoteConversion(random, order);
    case 7: return Some(NeighbourConversion, random, order);
    default: return NeighbourConversion(random, order);
    }
}

void Shake(RandomSource& random, OrderRow order) {
    for (int burst = 0; burst < 500; ++burst) {
        const std::int32_t moves = RandomInRange(random, 1, 20);
        for (std::int32_t move = 0; move < moves; ++move) SingleTransfer(random, order);
    }
}

} // namespace dorvan
