// The words that made-up contacts and their appointments are put together from.
#pragma once

#include <QStringView>

#include <array>

namespace quill::bench {

// Family names of two parts, so that a large store has many different ones.
inline constexpr auto kFamilyBeginnings = std::to_array<QStringView>(
    {u"Ash",  u"Black", u"Brook", u"Brom", u"Carl", u"Dal",  u"Elm",  u"Fair", u"Green", u"Hart",
     u"Hol",  u"Ives",  u"Kings", u"Lang", u"Mar",  u"Nor",  u"Oak",  u"Pres", u"Quin",  u"Rad",
     u"Stan", u"Thorn", u"Under", u"Vick", u"West", u"Wood", u"Yard", u"Zell", u"Gar",   u"Mil"});
inline constexpr auto kFamilyEndings = std::to_array<QStringView>(
    {u"berg", u"bury", u"by",   u"croft", u"dale", u"er", u"feld", u"ford", u"ham", u"hurst",
     u"ing",  u"ley",  u"lund", u"man",   u"ner",  u"ov", u"sen",  u"son",  u"ton", u"well"});
inline constexpr auto kFamilies = std::to_array<QStringView>(
    {u"Åkesson",      u"Brown",   u"Castaño",   u"Dvořák", u"Evans",   u"Fernández", u"Gröger",
     u"Hughes",       u"Ivanova", u"Jørgensen", u"Keller", u"Łukasik", u"Müller",    u"Novák",
     u"O'Brien",      u"Pérez",   u"Quist",     u"Rossi",  u"Şahin",   u"Tóth",      u"Urbański",
     u"van der Meer", u"Weiß",    u"Xhaka",     u"Yıldız", u"Žižka"});
inline constexpr auto kGivenNames = std::to_array<QStringView>(
    {u"Anna",  u"Björn",   u"Chloé",   u"Darragh",  u"Elżbieta", u"François", u"Grace",
     u"Håkan", u"Inés",    u"José",    u"Katarína", u"Liam",     u"Margit",   u"Noël",
     u"Oddný", u"Priya",   u"Quentin", u"Renée",    u"Sofia",    u"Tomás",    u"Ulrich",
     u"Vera",  u"William", u"Xenia",   u"Yusuf",    u"Zoë",      u"Alice",    u"Bernard",
     u"Clara", u"David",   u"Emma",    u"Frank",    u"Helen",    u"Ian",      u"Julia",
     u"Karl",  u"Laura",   u"Martin",  u"Nora",     u"Oscar"});
// Common ones stand more than once, as there are more of them.
inline constexpr auto kHangulFamilies = std::to_array<QStringView>(
    {u"김", u"김", u"김", u"김", u"이", u"이", u"이", u"박", u"박", u"최", u"정", u"강",  u"조",
     u"윤", u"장", u"임", u"한", u"오", u"서", u"신", u"권", u"황", u"안", u"송", u"남궁"});
inline constexpr auto kHangulBeginnings = std::to_array<QStringView>(
    {u"가", u"건", u"나", u"다", u"도", u"동", u"민", u"보", u"서", u"선",
     u"성", u"수", u"승", u"시", u"아", u"영", u"예", u"우", u"유", u"은",
     u"재", u"정", u"주", u"준", u"지", u"진", u"채", u"태", u"하", u"현"});
inline constexpr auto kHangulEndings = std::to_array<QStringView>(
    {u"경", u"국", u"규", u"기", u"라", u"람", u"미", u"민", u"빈", u"서",
     u"석", u"선", u"성", u"수", u"아", u"연", u"영", u"우", u"욱", u"원",
     u"윤", u"은", u"인", u"정", u"준", u"지", u"진", u"호", u"훈", u"희"});

inline constexpr auto kCompanyBeginnings = std::to_array<QStringView>(
    {u"Harbour", u"Mill Lane", u"Grünwald", u"Café",      u"Northern", u"한빛",
     u"북한산",  u"Blue Door", u"Fjord",    u"Old Town",  u"Kestrel",  u"Sunrise",
     u"Tulip",   u"Zenith",    u"Yellow",   u"Riverside", u"Étoile",   u"Atlas",
     u"Beacon",  u"Copper",    u"Delta",    u"Ivory",     u"Lantern",  u"대동"});
inline constexpr auto kCompanyTrades = std::to_array<QStringView>(
    {u"Lights", u"Partners", u"Foods", u"상사", u"Books", u"Transport", u"Dental", u"Garage",
     u"Design", u"Paper", u"전자", u"Insurance", u"Timber", u"Travel", u"Optics", u"Bakery"});
inline constexpr auto kCompanyForms =
    std::to_array<QStringView>({u"Ltd.", u"GmbH", u"S.A.", u"(주)", u"AS", u"Inc."});
inline constexpr auto kServices =
    std::to_array<QStringView>({u"24h Locksmith", u"1st Choice Taxi", u"3 Rivers Plumbing",
                                u"112 Medical Line", u"7 Hills Hostel", u"24시 약국"});
inline constexpr auto kJobTitles = std::to_array<QStringView>(
    {u"Engineer", u"Head of Sales", u"Directrice", u"과장", u"Gärtner", u"Nurse", u"대리"});
inline constexpr auto kDepartments =
    std::to_array<QStringView>({u"Sales", u"Purchasing", u"연구소", u"Service", u"Buchhaltung"});
inline constexpr auto kStreets = std::to_array<QStringView>(
    {u"Long Street", u"Market Square", u"Mühlweg", u"Rue de la Paix", u"Harbour Road", u"중앙로"});
inline constexpr auto kCities = std::to_array<QStringView>(
    {u"Bergen", u"Köln", u"서울", u"Córdoba", u"Leeds", u"Łódź", u"부산", u"Lyon", u"Turku"});
inline constexpr auto kCountries = std::to_array<QStringView>(
    {u"Norway", u"Germany", u"대한민국", u"Spain", u"United Kingdom", u"Poland"});
inline constexpr auto kCategories = std::to_array<QStringView>(
    {u"Business", u"Club", u"Customers", u"Family", u"Friends", u"Holiday", u"Neighbours",
     u"Personal", u"School", u"Suppliers", u"동창", u"거래처"});

inline constexpr auto kSubjects = std::to_array<QStringView>(
    {u"Lunch", u"Meeting", u"Call back", u"Birthday present", u"계약", u"Tennis", u"회의"});

}  // namespace quill::bench
