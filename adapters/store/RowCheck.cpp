#include "adapters/store/RowCheck.h"

namespace orvelle::store {

namespace {

// FNV-1a. Each step can be undone, so two inputs that differ in one byte differ in the sum.
class Sum {
public:
    void AddByte(unsigned char byte) { sum = (sum ^ byte) * 0x100000001B3; }
    void Add(std::uint64_t number) {
        for (int shift = 0; shift < 64; shift += 8) AddByte(static_cast<unsigned char>(number >> shift));
    }
    void Add(const std::string& bytes) {
        Add(bytes.size());
        for (const char byte : bytes) AddByte(static_cast<unsigned char>(byte));
    }

    // Spreads each bit over all others (the finisher of MurmurHash3), as XOR of many needs; it can be undone as well.
    Check Finish() const {
        std::uint64_t spread = sum;
        spread = (spread ^ spread >> 33) * 0xFF51AFD7ED558CCD;
        spread = (spread ^ spread >> 33) * 0xC4CEB9FE1A85EC53;
        return static_cast<Check>(spread ^ spread >> 33);
    }

private:
    std::uint64_t sum = 0xCBF29CE484222325;
};

}  // namespace

Check RowCheck(StoredTable table, const std::string& place, const std::string& name, const StoredValue& value) {
    Sum sum;
    sum.AddByte(static_cast<unsigned char>(table));
    sum.Add(place);
    sum.Add(name);
    sum.AddByte(static_cast<unsigned char>(value.index()));
    if (const auto* number = std::get_if<Long>(&value))
        sum.Add(static_cast<std::uint64_t>(*number));
    else if (const auto* bytes = std::get_if<std::string>(&value))
        sum.Add(*bytes);
    return sum.Finish();
}

Check NumbersCheck(std::initializer_list<std::int64_t> numbers) {
    Sum sum;
    for (const std::int64_t number : numbers) sum.Add(static_cast<std::uint64_t>(number));
    return sum.Finish();
}

}  // namespace orvelle::store
