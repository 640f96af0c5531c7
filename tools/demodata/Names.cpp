#include "Names.h"

#include <array>
#include <cctype>

namespace velcro::demo {

namespace {

using Words = std::array<const char*, 20>;

constexpr Words givenHeads = {"Lo", "Mar", "Ti",  "Bren", "Os",  "Ka",  "Fen", "Il",  "Dar", "Wen",
                              "Ju", "Per", "Tam", "Vel",  "Sor", "Hal", "Ed",  "Cor", "Ny",  "Ro"};
constexpr Words givenTails = {"rinda", "vek",  "mon",  "dal",  "wina", "simir", "ella",
                              "grith", "ian",  "thea", "ko",   "ric",  "sabe",  "lise",
                              "mund",  "anka", "wyn",  "bert", "dora", "nell"};
constexpr Words familyHeads = {"Braven", "Tor",     "Quill", "Marrow", "Ash",   "Vander", "Ekker",
                               "Lund",   "Ostra",   "Pell",  "Wick",   "Drago", "Hask",   "Morn",
                               "Calder", "Thistle", "Rand",  "Skel",   "Fair",  "Grun"};
constexpr Words familyTails = {"sholt", "wick",  "by",     "dott", "mere", "stadt", "ley",
                               "croft", "ova",   "esk",    "ton",  "berg", "horn",  "vane",
                               "acre",  "field", "strand", "moor", "pike", "well"};
// Letters of many alphabets: what a counter meets, and what a statement has to carry unharmed.
constexpr std::array<const char*, 10> otherFamilies = {
    "Åkervind", "Ñandolez", "Żelwicka",  "Ødeskov", "Çırpanlı",
    "Ďurkovan", "Мирелков", "Καλδέρμου", "צלמורן",  "高瀬谷"};
constexpr std::array<const char*, 10> otherGiven = {"Jörund", "Zoë",   "Łucja",   "Sørine", "Gülsa",
                                                    "Běla",   "Олвин", "Θεαδώρα", "תמירן",  "蓮乃"};

constexpr std::array<const char*, 12> trades = {
    "Catering", "Guest House", "Dental Rooms", "Motor Spares",  "Primary School", "Bakery",
    "Property", "Laundry",     "Studio",       "Farm Supplies", "Security",       "Panel Beaters"};
constexpr std::array<const char*, 5> firmKinds = {"(Pty) Ltd", "CC", "Trading", "& Sons", "Inc"};
constexpr std::array<const char*, 10> streetKinds = {
    "Street", "Road", "Avenue", "Lane", "Close", "Crescent", "Way", "Row", "Square", "Drive"};
constexpr std::array<const char*, 9> towns = {"Ostermere",  "Ambercroft", "Northfold",
                                              "Quillhaven", "Saltmarsh",  "Dunwater",
                                              "Harrowvale", "Eastlea",    "Pinecombe"};
constexpr std::array<const char*, 12> brandHeads = {"Vor", "Lumi", "Kest", "Ax",   "Novi", "Tre",
                                                    "Zan", "Olu",  "Brio", "Hexa", "Mira", "Dun"};
constexpr std::array<const char*, 10> brandTails = {"dell",  "tona", "rix", "ana", "volt",
                                                    "quist", "lo",   "max", "wen", "thera"};

bool isVowel(char c) {
    return std::string_view("aeiou").find(c) != std::string_view::npos;
}

std::string joined(std::string head, const std::string& tail) {
    if (isVowel(head.back()) && isVowel(tail.front())) {
        head.pop_back();
    }
    return head + tail;
}

std::string capital(std::string word) {
    word[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(word[0])));
    return word;
}

} // namespace

// Each choice is a statement of its own: operands and arguments may be evaluated in any order, and
// the order decides what comes out.
std::string surname(Random& random) {
    const char* head = random.pick(familyHeads);
    return joined(head, random.pick(familyTails));
}

std::string givenName(Random& random) {
    const char* head = random.pick(givenHeads);
    return capital(joined(head, random.pick(givenTails)));
}

std::string personName(Random& random) {
    const int kind = random.below(120);
    if (kind < 10) {
        const std::string given = random.pick(otherGiven);
        return given + " " + random.pick(otherFamilies);
    }
    std::string given = givenName(random);
    std::string family = surname(random);
    if (kind < 13) {
        given += " " + givenName(random);
        family += "-" + surname(random);
        family += " van der " + surname(random);
    } else if (kind < 16) {
        family = "O'" + family;
    }
    return given + " " + family;
}

std::string firmName(Random& random) {
    std::string name = surname(random);
    name += std::string(" ") + random.pick(trades);
    return name + " " + random.pick(firmKinds);
}

std::string streetAddress(Random& random) {
    std::string address = std::to_string(random.between(1, 240));
    address += " " + surname(random);
    return address + " " + random.pick(streetKinds);
}

std::string townName(Random& random) {
    return random.pick(towns);
}

std::string brandName(Random& random) {
    const char* head = random.pick(brandHeads);
    return joined(head, random.pick(brandTails));
}

std::string phoneNumber(Random& random, int serial) {
    std::string digits = "0";
    digits += static_cast<char>('1' + random.below(9));
    digits += static_cast<char>('1' + random.below(9));
    const std::string last = std::to_string(10000 + serial % 10000).substr(1);
    return random.percent(33) ? digits + "-555-" + last : digits + "555" + last;
}

std::string mailAddress(const std::string& name, int serial) {
    std::string local;
    for (const char c : name) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0 && local.size() < 12) {
            local += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return (local.empty() ? "customer" : local) + "." + std::to_string(serial) + "@post.example";
}

std::string upperCase(std::string text) {
    for (char& c : text) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return text;
}

std::string cutTo(const std::string& text, std::size_t characters) {
    std::size_t at = 0;
    while (at < text.size() && characters > 0) {
        ++at;
        while (at < text.size() && (text[at] & 0xC0) == 0x80) {
            ++at;
        }
        --characters;
    }
    return text.substr(0, at);
}

} // namespace velcro::demo
