#pragma once
// Integer geometry and colours shared by the model and every drawing surface.
#include <cstdint>

// The widest and highest surface the program draws on, in pixels: more than any screen has.
// A larger sheet or picture is refused where it is asked for.
inline constexpr int TAILLE_SURFACE_MAX = 16384;

struct TPoint {
  int x = 0;
  int y = 0;
  constexpr TPoint() = default;
  constexpr TPoint(int x_, int y_) : x(x_), y(y_) {}
  friend constexpr bool operator==(const TPoint&, const TPoint&) = default;
};

struct TSize {
  int cx = 0;
  int cy = 0;
  friend constexpr bool operator==(const TSize&, const TSize&) = default;
};

// Device rectangle, right and bottom excluded.
struct TRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  constexpr TRect() = default;
  constexpr TRect(int l, int t, int r, int b) : left(l), top(t), right(r), bottom(b) {}
  constexpr int Width() const { return right - left; }
  constexpr int Height() const { return bottom - top; }
  friend constexpr bool operator==(const TRect&, const TRect&) = default;
};

// A 32-bit colour laid out as 0x00BBGGRR, the value a routine's colours are compared by.
class TColor {
public:
  constexpr TColor() = default;
  constexpr explicit TColor(std::uint32_t valeur) : Valeur(valeur) {}
  constexpr TColor(int r, int g, int b)
      : Valeur(static_cast<std::uint32_t>(r & 0xFF) | static_cast<std::uint32_t>(g & 0xFF) << 8 |
               static_cast<std::uint32_t>(b & 0xFF) << 16) {}
  constexpr int Red() const { return static_cast<int>(Valeur & 0xFF); }
  constexpr int Green() const { return static_cast<int>((Valeur >> 8) & 0xFF); }
  constexpr int Blue() const { return static_cast<int>((Valeur >> 16) & 0xFF); }
  constexpr std::uint32_t GetValue() const { return Valeur; }
  friend constexpr bool operator==(const TColor&, const TColor&) = default;

  static const TColor Black, White, Gray, LtGray, LtRed, LtGreen, LtBlue, LtMagenta, LtCyan, LtYellow;

private:
  std::uint32_t Valeur = 0;
};

inline constexpr TColor TColor::Black{0, 0, 0};
inline constexpr TColor TColor::White{255, 255, 255};
inline constexpr TColor TColor::Gray{128, 128, 128};
inline constexpr TColor TColor::LtGray{192, 192, 192};
inline constexpr TColor TColor::LtRed{255, 0, 0};
inline constexpr TColor TColor::LtGreen{0, 255, 0};
inline constexpr TColor TColor::LtBlue{0, 0, 255};
inline constexpr TColor TColor::LtMagenta{255, 0, 255};
inline constexpr TColor TColor::LtCyan{0, 255, 255};
inline constexpr TColor TColor::LtYellow{255, 255, 0};
