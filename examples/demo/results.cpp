#include "examples/demo/results.h"

#include "examples/demo/csv.h"
#include "examples/demo/failure.h"
#include "examples/demo/files.h"
#include "examples/demo/json.h"
#include "examples/demo/keep.h"
#include "examples/demo/table.h"
#include "platform/core/object/exception.h"

#include <iostream>

namespace {

void tellWritten(const std::filesystem::path& file) { std::cout << file.string() << " written.\n"; }

void writeArchive(const std::filesystem::path& file, const std::vector<Object>& objects) {
    const Kept kept = keptOf(objects);
    try {
        save(file, kept);
    } catch (const gkException&) {
        throw Failure("'" + file.string() + "' cannot be written."); // the archive's own error names no file
    }
    if (!same(load(file), kept))
        throw Failure("The regions read back from '" + file.string() + "' differ from those written.");
    std::cout << file.string() << " holds " << counted(objects.size(), "region") << " and "
              << (objects.size() == 1 ? "its" : "their") << " edge points; read back, they are equal.\n";
}

void writeCsv(const std::filesystem::path& file, const Scene& scene) {
    writeText(file, csvOf(scene.measures, scene.scale));
    tellWritten(file);
}

void writeJson(const std::filesystem::path& file, const std::filesystem::path& image, const Scene& scene) {
    writeText(file, jsonOf(image.filename().string(), scene.photograph, scene.measures, scene.scale));
    tellWritten(file);
}

void writePicture(const std::filesystem::path& file, const Scene& scene, double wantedSide,
                  Progress& progress) {
    progress.tell("drawing " + file.string());
    savePicture(file, scene, wantedSide);
    progress.clear();
    tellWritten(file);
}

} // namespace

void writeResults(const Options& options, const Scene& scene, Progress& progress) {
    if (!options.csv.empty()) writeCsv(options.csv, scene);
    if (!options.json.empty()) writeJson(options.json, options.image, scene);
    if (!options.archive.empty()) writeArchive(options.archive, scene.objects);
    if (!options.picture.empty()) writePicture(options.picture, scene, options.wantedSide, progress);
    if (options.folder.empty()) return;

    makeFolder(options.folder);
    const std::string stem = (options.folder / options.image.stem()).string();
    writeCsv(stem + "_measures.csv", scene);
    writeJson(stem + "_measures.json", options.image, scene);
    writeArchive(stem + "_regions.gka", scene.objects);
    for (const char* suffix : {".png", ".svg", ".pdf"})
        writePicture(stem + "_measured" + suffix, scene, options.wantedSide, progress);
}
