// Draws what each operation answers, one small picture for each or for a few that belong together.
//
// usage: pictures DIRECTORY, which gets the SVG files
#include "groups.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: pictures DIRECTORY\n";
        return 2;
    }
    try {
        for (const Pictures& group : {measures(), proximity(), crossings(), repairs()}) {
            for (const Picture& picture : group) {
                Figure figure;
                picture.draw(figure);
                figure.save(std::string(argv[1]) + "/" + picture.name + ".svg");
            }
        }
    } catch (gkException&) {
        std::cerr << "pictures: the library refused, or a picture could not be written\n";
        return 1;
    } catch (const std::exception& error) {
        std::cerr << "pictures: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
