// A source whose mutants are all known; see mutate_test.py.
#include <cstdio>
#include <optional>
#include <string>

namespace {

constexpr int limit = 3;

constexpr int Twice(int value) { return value * limit; }
static_assert(Twice(2) == 6);

template <int Size>
int Sized(bool isLarge) {
    return isLarge ? Size : -Size;
}

bool IsShort(const std::string& text) { return text != "a" && text.size() <= limit; }

void Print(std::optional<int> number) {
    static const char name[] = "n";
    if (const int first = number.value_or(7); !number) {
        std::printf("none %c%s", first == 7 ? 'y' : 'n', name);
    } else
        std::printf("some");
    for (int at = 0; at < 2; ++at) {
        if (at == 1) continue;
        number = at;
    }
    std::printf(" %d\n", number.value_or(5));
}

}  // namespace

int main() {
    std::printf("%d %d %d%d%d\n", Twice(2), Sized<5>(true), IsShort("a"), IsShort("abc"), IsShort("abcd"));
    Print(std::nullopt);
    return IsShort("a") ? 1 : 0;
}
