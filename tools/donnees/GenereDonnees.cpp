// Writes the player's data: the 30 kite models (DirectX text .x) and the cloud backdrop.
//
//   trajectoires-genere-donnees OUTDIR
//
// The output must be identical from one run, build type or machine to the next, because
// the repository holds it and a test compares it byte for byte. Hence only +, -, *, / and
// sqrt (all correctly rounded) in the arithmetic, no sin/cos/pow, and no locale.
//
// Kite frame, as Assimp hands it to the player: nose along +y, wingspan along x (about
// -4..4), front of the sail (the pilot's side) facing +z. DirectX files are left-handed and
// Assimp mirrors z and flips the winding on import, so the writer does the opposite.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {

struct V3 {
  double x = 0, y = 0, z = 0;
};
V3 operator+(V3 a, V3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
V3 operator-(V3 a, V3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
V3 operator*(double k, V3 a) { return {k * a.x, k * a.y, k * a.z}; }
double dot(V3 a, V3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
V3 cross(V3 a, V3 b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
double norm(V3 a) { return std::sqrt(dot(a, a)); }
V3 unit(V3 a) { return (1.0 / norm(a)) * a; }
V3 lerp(V3 a, V3 b, double t) { return a + t * (b - a); }
V3 mirror(V3 a) { return {-a.x, a.y, a.z}; }

struct Colour {
  double r, g, b;
};

struct Material {
  std::string name;
  Colour colour;
  double power;     // specular exponent
  double specular;  // grey level of the highlight
};

struct Triangle {
  V3 a, b, c;
  int material;
};

struct Kite {
  std::vector<Material> materials;
  std::vector<Triangle> faces;

  int material(const std::string& name, Colour c, double power = 12.0, double specular = 0.25) {
    for (std::size_t i = 0; i < materials.size(); ++i)
      if (materials[i].name == name) return static_cast<int>(i);
    materials.push_back({name, c, power, specular});
    return static_cast<int>(materials.size()) - 1;
  }

  // Adds a triangle whose normal points to the `side` half-space.
  void add(V3 a, V3 b, V3 c, int mat, V3 side) {
    V3 n = cross(b - a, c - a);
    if (norm(n) < 1e-9) return;  // degenerate panel corner
    if (dot(n, side) < 0) std::swap(b, c);
    faces.push_back({a, b, c, mat});
  }
  void addQuad(V3 a, V3 b, V3 c, V3 d, int mat, V3 side) {
    add(a, b, c, mat, side);
    add(a, c, d, mat, side);
  }
  // Thin pieces (fins, ribbons) are seen from both sides.
  void addTwoSided(V3 a, V3 b, V3 c, int mat) {
    V3 n = cross(b - a, c - a);
    add(a, b, c, mat, n);
    add(a, b, c, mat, -1.0 * n);
  }
  // A spar or bridle leg: a triangular prism of radius r, open ends (too thin to see).
  void addRod(V3 from, V3 to, double r, int mat) {
    V3 d = unit(to - from);
    V3 ref = std::fabs(d.z) < 0.9 ? V3{0, 0, 1} : V3{1, 0, 0};
    V3 u = unit(cross(d, ref));
    V3 v = cross(d, u);
    const double s = std::sqrt(3.0) / 2.0;
    std::array<V3, 3> ring = {r * u, (-0.5 * r) * u + (s * r) * v, (-0.5 * r) * u + (-s * r) * v};
    for (int i = 0; i < 3; ++i) {
      V3 p = ring[i], q = ring[(i + 1) % 3];
      addQuad(from + p, to + p, to + q, from + q, mat, p + q);
    }
  }
};

// ---- Colours ------------------------------------------------------------------------

// Kite k of every team flies the same main colour, so the pilot's colour code holds.
const std::array<Colour, 6> kMain = {{{0.86, 0.10, 0.10},    // 1 red
                                       {0.10, 0.28, 0.86},   // 2 blue
                                       {0.10, 0.68, 0.20},   // 3 green
                                       {0.96, 0.84, 0.08},   // 4 yellow
                                       {0.82, 0.12, 0.76},   // 5 magenta
                                       {0.08, 0.78, 0.84}}};  // 6 cyan
// Team 1 flies the colours the editor draws each kite in (model/Document.cpp), so that a kite
// reads the same on the sheets and in the player.
const std::array<Colour, 6> kEditeur = {{{0, 0, 0},   // 1 black
                                          {1, 0, 0},   // 2 red
                                          {0, 0, 1},   // 3 blue
                                          {0, 1, 0},   // 4 green
                                          {1, 0, 1},   // 5 magenta
                                          {0, 1, 1}}};  // 6 cyan
const Colour kWhite = {0.95, 0.95, 0.95};
const Colour kBlack = {0.06, 0.06, 0.07};
const Colour kFrame = {0.16, 0.16, 0.18};
const Colour kBridle = {0.88, 0.86, 0.78};
const Colour kMesh = {0.30, 0.30, 0.34};

// ---- Delta stunt kites --------------------------------------------------------------

struct DeltaLook {
  double tipY, centreY, tipZ;      // wingtip height, trailing edge notch, dihedral
  std::vector<double> cuts;        // panel boundaries, 0 (centre) .. 1 (wingtip)
  std::vector<int> trim;           // per panel: 0 main colour, 1 trim colour
  Colour trimColour;
  double scallop;                  // raises every other trailing-edge point
  bool tails, winglets;
};

// z follows the dihedral: the wings sweep back from the wind, linearly in |x|.
V3 onSail(double x, double y, double tipZ) { return {x, y, tipZ * std::fabs(x) / 4.0}; }

Kite buildDelta(const DeltaLook& look, Colour main) {
  Kite k;
  const int sail = k.material("Voile", main);
  const int frame = k.material("Armature", kFrame, 30.0, 0.5);
  const int bridle = k.material("Bride", kBridle, 4.0, 0.1);
  const bool hasTrim = std::find(look.trim.begin(), look.trim.end(), 1) != look.trim.end() ||
                       look.tails || look.winglets;
  const int trim = hasTrim ? k.material("Bordure", look.trimColour) : sail;
  const V3 front{0, 0, 1};

  const V3 nose{0, 3.0, 0};
  const V3 tip = onSail(4.0, look.tipY, look.tipZ);
  const V3 notch{0, look.centreY, 0};
  const std::size_t n = look.cuts.size() - 1;
  std::vector<V3> lead, trail;
  for (std::size_t i = 0; i <= n; ++i) {
    double t = look.cuts[i];
    V3 l = lerp(nose, tip, t), r = lerp(notch, tip, t);
    if (i > 0 && i < n && i % 2 == 1) r.y += look.scallop;
    lead.push_back(onSail(l.x, l.y, look.tipZ));
    trail.push_back(onSail(r.x, r.y, look.tipZ));
  }
  for (int side = 0; side < 2; ++side) {
    auto m = [&](V3 p) { return side ? mirror(p) : p; };
    for (std::size_t i = 0; i < n; ++i)
      k.addQuad(m(lead[i]), m(lead[i + 1]), m(trail[i + 1]), m(trail[i]),
                look.trim[i] ? trim : sail, front);
    k.addRod(m(nose), m(tip), 0.045, frame);  // leading edge
    if (look.winglets) {
      // A small fin standing forward at each wingtip.
      k.addTwoSided(m(tip), m(tip + V3{-0.7, 0.55, 0}), m(tip + V3{-0.35, 0.1, 0.55}), trim);
    }
    if (look.tails) {
      // Two streamers from the notch.
      V3 root = m(notch + V3{0.12, 0, 0});
      k.addTwoSided(root, root + V3{side ? -0.14 : 0.14, 0, 0}, m(notch + V3{0.32, -2.7, 0.1}), trim);
    }
  }
  // Spine, spreader across the back, and a three-legged bridle to the towing point in front.
  k.addRod(nose + V3{0, 0, -0.05}, notch + V3{0, 0, -0.05}, 0.05, frame);
  V3 joint = onSail(4.0 * 0.55, lerp(nose, tip, 0.55).y, look.tipZ);
  k.addRod(joint + V3{0, 0, -0.05}, mirror(joint) + V3{0, 0, -0.05}, 0.04, frame);
  const V3 tow{0, 0.8, 1.15};
  k.addRod(nose + V3{0, -0.6, 0.02}, tow, 0.015, bridle);
  k.addRod(joint + V3{0, 0, 0.02}, tow, 0.015, bridle);
  k.addRod(mirror(joint) + V3{0, 0, 0.02}, tow, 0.015, bridle);
  return k;
}

// ---- Four-line kite -----------------------------------------------------------------

// Straight top edge seen from the front, bowed back at the tips, mesh vent along the top.
Kite buildFourLine(Colour main) {
  Kite k;
  const int sail = k.material("Voile", main);
  const int white = k.material("Bande", kWhite);
  const int vent = k.material("Filet", kMesh, 2.0, 0.05);
  const int frame = k.material("Armature", kFrame, 30.0, 0.5);
  const V3 front{0, 0, 1};
  auto bow = [](double x, double y) { return V3{x, y, -0.06 * x * x}; };

  const std::array<double, 5> topX = {0, 1, 2, 3, 4};
  const std::array<double, 5> botX = {0, 1, 2, 3, 3.6};
  const std::array<double, 5> botY = {-1.0, -0.9, -0.6, -0.1, 0.7};
  const double top = 3.0, ventBottom = 2.45;
  for (int side = 0; side < 2; ++side) {
    const double s = side ? -1.0 : 1.0;
    for (int i = 0; i < 4; ++i) {
      // Where the vent's lower edge crosses the panel's two sides.
      auto at = [&](int j, double y) {
        double f = (top - y) / (top - botY[j]);
        return bow(s * (topX[j] + f * (botX[j] - topX[j])), y);
      };
      V3 t0 = bow(s * topX[i], top), t1 = bow(s * topX[i + 1], top);
      V3 v0 = at(i, ventBottom), v1 = at(i + 1, ventBottom);
      V3 b0 = bow(s * botX[i], botY[i]), b1 = bow(s * botX[i + 1], botY[i + 1]);
      k.addQuad(t0, t1, v1, v0, vent, front);
      k.addQuad(v0, v1, b1, b0, i == 2 ? white : sail, front);
    }
    // Upright spar behind the sail, between the second and third panel.
    k.addRod(bow(s * 2.0, top) + V3{0, 0, -0.05}, bow(s * botX[2], botY[2]) + V3{0, 0, -0.05}, 0.04,
             frame);
  }
  // Leading-edge spar following the bow.
  const std::array<double, 5> spar = {-4, -2, 0, 2, 4};
  for (int i = 0; i < 4; ++i)
    k.addRod(bow(spar[i], top + 0.03), bow(spar[i + 1], top + 0.03), 0.05, frame);
  return k;
}

Kite buildKite(int team, Colour main) {
  switch (team) {
    case 1:  // white wingtips
      return buildDelta({-1.3, -0.9, -0.5, {0, 0.3, 0.6, 0.8, 1}, {0, 0, 1, 1}, kWhite, 0, false, false},
                        main);
    case 2:  // swept wingtips, black band, twin tails
      return buildDelta({-2.0, -1.0, -0.6, {0, 0.25, 0.5, 0.75, 1}, {0, 1, 0, 0}, kBlack, 0, true, false},
                        main);
    case 3:  // white stripes, scalloped trailing edge, winglets
      return buildDelta({-1.5, -1.3, -0.45, {0, 1. / 6, 2. / 6, 3. / 6, 4. / 6, 5. / 6, 1},
                         {0, 1, 0, 1, 0, 1}, kWhite, 0.3, false, true},
                        main);
    case 4:
      return buildFourLine(main);
    default:  // plain
      return buildDelta({-1.2, -0.7, -0.4, {0, 0.5, 1}, {0, 0}, kWhite, 0, false, false}, main);
  }
}

// ---- .x writer ----------------------------------------------------------------------

std::string num(double v) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.4f", v);
  std::string s = buf;
  if (s == "-0.0000") s = "0.0000";
  return s;
}

// Into DirectX's left-handed space: mirror z (the winding is reversed by the caller).
std::string vec(V3 p) { return num(p.x) + ";" + num(p.y) + ";" + num(-p.z) + ";"; }

std::string writeX(const Kite& k, int team, int number) {
  // Shared positions and normals keep the files small; normals stay flat, one per face.
  std::vector<std::string> positions, normals;
  std::map<std::string, int> positionIndex, normalIndex;
  auto index = [](std::vector<std::string>& list, std::map<std::string, int>& idx, const std::string& s) {
    auto [it, fresh] = idx.emplace(s, static_cast<int>(list.size()));
    if (fresh) list.push_back(s);
    return it->second;
  };
  std::vector<std::array<int, 3>> faces;
  std::vector<int> faceNormals;
  for (const Triangle& t : k.faces) {
    // Reversed order: the mirror of z would otherwise turn every face inside out.
    faces.push_back({index(positions, positionIndex, vec(t.a)), index(positions, positionIndex, vec(t.c)),
                     index(positions, positionIndex, vec(t.b))});
    faceNormals.push_back(index(normals, normalIndex, vec(unit(cross(t.b - t.a, t.c - t.a)))));
  }

  auto list = [](std::string& out, const std::vector<std::string>& items) {
    for (std::size_t i = 0; i < items.size(); ++i)
      out += "   " + items[i] + (i + 1 < items.size() ? ",\n" : ";\n");
  };
  const std::string name = "CV" + std::to_string(team) + "_" + std::to_string(number);
  std::string out = "xof 0303txt 0032\n\n";
  out += "Frame FRAME_CV" + std::to_string(number) + " {\n";
  out += " FrameTransformMatrix {\n  1.0,0.0,0.0,0.0,0.0,1.0,0.0,0.0,0.0,0.0,1.0,0.0,0.0,0.0,0.0,1.0;;\n }\n";
  out += " Mesh " + name + " {\n";
  out += "  " + std::to_string(positions.size()) + ";\n";
  list(out, positions);
  out += "  " + std::to_string(faces.size()) + ";\n";
  std::vector<std::string> items;
  for (auto& f : faces)
    items.push_back("3;" + std::to_string(f[0]) + "," + std::to_string(f[1]) + "," + std::to_string(f[2]) + ";");
  list(out, items);

  out += "  MeshNormals {\n  " + std::to_string(normals.size()) + ";\n";
  list(out, normals);
  out += "  " + std::to_string(faces.size()) + ";\n";
  items.clear();
  for (int n : faceNormals) {
    std::string s = std::to_string(n);
    items.push_back("3;" + s + "," + s + "," + s + ";");
  }
  list(out, items);
  out += "  }\n";

  // Materials inline: Assimp 5.2 resolves named references all to the first material.
  out += "  MeshMaterialList {\n  " + std::to_string(k.materials.size()) + ";\n  " +
         std::to_string(k.faces.size()) + ";\n";
  items.clear();
  for (const Triangle& t : k.faces) items.push_back(std::to_string(t.material));
  list(out, items);
  for (const Material& m : k.materials) {
    const Colour& c = m.colour;
    out += "   Material " + m.name + " {\n";
    out += "    " + num(c.r) + ";" + num(c.g) + ";" + num(c.b) + ";1.0000;;\n";
    out += "    " + num(m.power) + ";\n";
    out += "    " + num(m.specular) + ";" + num(m.specular) + ";" + num(m.specular) + ";;\n";
    out += "    0.0000;0.0000;0.0000;;\n   }\n";
  }
  out += "  }\n }\n}\n";
  return out;
}

// ---- Cloud backdrop -----------------------------------------------------------------

constexpr int kWidth = 1024, kHeight = 512;

std::uint32_t hash(std::uint32_t x, std::uint32_t y, std::uint32_t octave) {
  std::uint32_t h = x * 0x8da6b343u ^ y * 0xd8163841u ^ octave * 0xcb1ab31fu ^ 0x5eed1234u;
  h ^= h >> 15;
  h *= 0x2c1b3c6du;
  h ^= h >> 12;
  h *= 0x297a2d39u;
  h ^= h >> 15;
  return h;
}

double lattice(int x, int y, int period, int octave) {
  int wx = ((x % period) + period) % period;
  return static_cast<double>(hash(static_cast<std::uint32_t>(wx), static_cast<std::uint32_t>(y),
                                  static_cast<std::uint32_t>(octave)) >> 8) / 16777216.0;
}

// Value noise, periodic across x so the backdrop wraps around the scene without a seam.
double valueNoise(double x, double y, int period, int octave) {
  int ix = static_cast<int>(std::floor(x)), iy = static_cast<int>(std::floor(y));
  double fx = x - ix, fy = y - iy;
  double sx = fx * fx * (3 - 2 * fx), sy = fy * fy * (3 - 2 * fy);
  double a = lattice(ix, iy, period, octave), b = lattice(ix + 1, iy, period, octave);
  double c = lattice(ix, iy + 1, period, octave), d = lattice(ix + 1, iy + 1, period, octave);
  double top = a + sx * (b - a), bottom = c + sx * (d - c);
  return top + sy * (bottom - top);
}

double smoothstep(double lo, double hi, double v) {
  double t = (v - lo) / (hi - lo);
  t = t < 0 ? 0 : (t > 1 ? 1 : t);
  return t * t * (3 - 2 * t);
}

std::uint8_t byte(double v) {
  v = v < 0 ? 0 : (v > 1 ? 1 : v);
  return static_cast<std::uint8_t>(v * 255.0 + 0.5);
}

std::vector<std::uint8_t> writeBmp() {
  const int rowBytes = (kWidth * 3 + 3) / 4 * 4;
  const std::uint32_t pixelBytes = static_cast<std::uint32_t>(rowBytes) * kHeight;
  std::vector<std::uint8_t> out;
  auto u16 = [&](std::uint32_t v) { out.push_back(v & 0xff); out.push_back((v >> 8) & 0xff); };
  auto u32 = [&](std::uint32_t v) { u16(v & 0xffff); u16(v >> 16); };
  out.push_back('B');
  out.push_back('M');
  u32(54 + pixelBytes);
  u32(0);
  u32(54);
  u32(40);  // BITMAPINFOHEADER
  u32(kWidth);
  u32(kHeight);  // positive: rows stored bottom-up
  u16(1);
  u16(24);
  u32(0);  // BI_RGB
  u32(pixelBytes);
  u32(2835);  // 72 dpi
  u32(2835);
  u32(0);
  u32(0);

  const Colour zenith = {0.16, 0.38, 0.78}, horizon = {0.62, 0.78, 0.95};
  for (int row = 0; row < kHeight; ++row) {
    const int y = kHeight - 1 - row;  // y = 0 is the top of the picture
    const double h = static_cast<double>(y) / (kHeight - 1);
    for (int x = 0; x < kWidth; ++x) {
      double n = 0, amplitude = 0.5;
      int period = 8;
      for (int o = 0; o < 5; ++o) {
        double scale = static_cast<double>(period) / kWidth;
        n += amplitude * valueNoise(x * scale, y * scale, period, o);
        amplitude *= 0.5;
        period *= 2;
      }
      n /= 0.96875;  // sum of the amplitudes
      // Fewer clouds high in the sky; thicker ones towards the horizon.
      double cloud = smoothstep(0.52 - 0.12 * h, 0.78 - 0.12 * h, n);
      double shade = 1.0 - 0.14 * smoothstep(0.6, 0.95, n);  // darker cores give them volume
      Colour sky = {zenith.r + h * (horizon.r - zenith.r), zenith.g + h * (horizon.g - zenith.g),
                    zenith.b + h * (horizon.b - zenith.b)};
      double w = 0.97 * shade;
      out.push_back(byte(sky.b + cloud * (w - sky.b)));
      out.push_back(byte(sky.g + cloud * (w - sky.g)));
      out.push_back(byte(sky.r + cloud * (w - sky.r)));
    }
    for (int p = kWidth * 3; p < rowBytes; ++p) out.push_back(0);
  }
  return out;
}

bool save(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream f(path, std::ios::binary);
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(f);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: trajectoires-genere-donnees DOSSIER\n";
    return 2;
  }
  const std::filesystem::path dir = argv[1];
  std::error_code ec;
  std::filesystem::create_directories(dir, ec);
  bool ok = true;
  for (int team = 1; team <= 5; ++team)
    for (int number = 1; number <= 6; ++number) {
      std::string name = "CV" + std::to_string(team) + "_" + std::to_string(number) + ".x";
      ok = save(dir / name, writeX(buildKite(team, (team == 1 ? kEditeur : kMain)[number - 1]), team, number)) && ok;
    }
  std::vector<std::uint8_t> bmp = writeBmp();
  ok = save(dir / "Nuages.bmp", std::string(bmp.begin(), bmp.end())) && ok;
  if (!ok) {
    std::cerr << "trajectoires-genere-donnees : impossible d'écrire dans « " << dir.string() << " »\n";
    return 1;
  }
  return 0;
}
