// usage: fuzz_seeds FOLDER    writes the first inputs of each target into FOLDER/TARGET; their names begin with
// "seed"
#include "tests/fuzz/outlines.h"
#include "tests/gen/kinds.h"
#include "tests/gen/tangles.h"
#include "tests/hostile/goldens.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

using Bytes = std::vector<std::uint8_t>;
using Outlines = std::vector<fuzz::Points>;

std::filesystem::path folder;

void write(const std::string& target, std::string name, const Bytes& bytes) {
    std::replace(name.begin(), name.end(), ' ', '_');
    name.erase(std::remove(name.begin(), name.end(), ','), name.end());
    std::filesystem::create_directories(folder / target);
    std::ofstream out(folder / target / ("seed_" + name), std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void write(const std::string& target, const std::string& name, const Outlines& outlines) {
    write(target, name, fuzz::bytesOf(outlines, 16384));
}

void writeArchives() {
    for (const hostile::Golden& golden : hostile::goldens())
        write("archive_" + golden.kind, golden.name, Bytes(golden.bytes.begin(), golden.bytes.end()));
}

void writeOutlines(const std::vector<gen::Kind>& kinds) {
    for (const gen::Kind& kind : kinds) {
        const Outlines two = {gen::shape(kind, 1), gen::shape(kind, 2)};
        write("regularize", kind.name, Outlines{two[0]});
        write("outer_hull", kind.name, Outlines{two[1]});
        write("splice", kind.name, two);
    }
}

void writeSets() {
    for (const gen::SetKind& kind : gen::setKinds()) {
        for (const std::uint64_t seed : {1u, 2u})
            write("set_merge", kind.name + std::to_string(seed), gen::shapes(kind, seed));
    }
}

// Steps in any order; the first byte is the class.
void writeTwins() {
    for (std::uint8_t seed = 0; seed < 40; ++seed) {
        gen::Random random(seed);
        Bytes bytes = {seed};
        for (int i = 0; i < 399; ++i) bytes.push_back(static_cast<std::uint8_t>(random.next()));
        write("shape_twin", std::to_string(seed), bytes);
    }
}

void writeCommandLines() {
    const std::vector<std::vector<std::string>> lines = {
        {"coins.png"},
        {"--help"},
        {"a.png", "--scale", "0.45", "--part", "14,12,216,95", "--least-area", "4", "--side", "800"},
        {"a.png", "--csv", "b.csv", "--json", "c.json", "--archive", "d.gka", "--picture", "e.svg", "--out",
         "f"},
        {"--scale", "1e3", "-", "--picture", "x.pdf"},
        {"--part", "0,0,999999999,1", "a"},
    };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::string all;
        for (const std::string& argument : lines[i])
            all += (all.empty() ? "" : std::string(1, '\0')) + argument;
        write("demo_options", std::to_string(i), Bytes(all.begin(), all.end()));
    }
}

void writeTexts(const std::string& target, const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        write(target, std::to_string(i), Bytes(texts[i].begin(), texts[i].end()));
}

void writeTexts() {
    writeTexts("wkt", {
                          "LINESTRING EMPTY",
                          "LINESTRING (0 0, 4 0.5, -0 1e+22)",
                          "POLYGON ((0 0, 4 0, 0 3, 0 0))",
                          "POLYGON ((0 0, 9 0, 9 9, 0 9, 0 0), (1 1, 2 1, 2 2, 1 2, 1 1), EMPTY)",
                          "MultiPolygon(((0 0,1 0,1 1,0 0)),EMPTY)",
                          "GEOMETRYCOLLECTION (POLYGON EMPTY, GEOMETRYCOLLECTION (LINESTRING (1 2, 3 4)))",
                          "POLYGON Z ((1 2 3, 4 5 6, 1 2 3))",
                      });
    writeTexts(
        "geojson",
        {
            R"({"type":"LineString","coordinates":[[0,0],[4,0.5],[-0.0,1e+22]]})",
            R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[0,9],[0,0]],[[1,1],[2,1],[1,2],[1,1]],[]]})",
            R"({"coordinates":[[[[0,0],[1,0],[1,1],[0,0]]],[]],"type":"MultiPolygon"})",
            R"({"type":"GeometryCollection","geometries":[{"type":"Polygon","coordinates":[]}]})",
            R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{"a":[null,true,"\u0041"]},)"
            R"("geometry":{"type":"Polygon","coordinates":[[[1,2],[1,2]]]}},{"type":"Feature","geometry":null}]})",
        });
    writeTexts("svg_path", {
                               "M 1 2 L 3 4 L 5 2 Z",
                               "m1 2 3 4ZZl1 1Z m 2 2 h 1 M 0 0",
                               "M10-20L.5.25\t-3 , +4e2 H5V6h-1v-1z",
                               "M0 0H9L0 9ZM1 1H2L1 2Z",
                               "M 0 0 C 1 2 3 4 5 6",
                           });
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fuzz_seeds FOLDER\n";
        return 2;
    }
    folder = argv[1];
    writeArchives();
    writeOutlines(gen::kinds());
    writeOutlines(gen::tangles());
    writeSets();
    writeTwins();
    writeCommandLines();
    writeTexts();
}
