#pragma once

#include <cstddef>
#include <string_view>

// The ways in which one input can be read: a locale, a form, an age of the format. A test of the seeds tries
// all; a run of the fuzzer takes one, which the input's length names, and so is many times as quick.
namespace dorvan::fuzz {

class Ways {
public:
    Ways() = default; // all
    explicit Ways(int only) : only_(only) {}

    // Whether to take the way that comes next.
    bool Take() {
        const int way = count_++;
        return only_ < 0 || way == only_;
    }
    int Count() const { return count_; }

private:
    int only_ = -1;
    int count_ = 0;
};

// `check(bytes, ways)` asks `ways` before each way.
template <auto check> void checkOneWay(std::string_view bytes) {
    static const int ways = [&] {
        Ways all;
        check({}, all);
        return all.Count();
    }();
    Ways one(int(bytes.size() % std::size_t(ways)));
    check(bytes, one);
}

} // namespace dorvan::fuzz
