// clang-format off
#pragma GCC diagnostic ignored "-Wall"
inline int a() { return ({ if (true) { } 1; }); }
inline int b() { return 1'000 + __builtin_popcount(2) + 3'000; }
inline auto c() { return R"(")"; } inline int d() { return __builtin_popcount(4); }
inline char e() { return '"'; } inline int f() { return __builtin_popcount(5); } inline char g() { return '"'; }
struct [[ gnu::packed ]] H { char first; int second; };
// clang-format on
