#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <CLI/CLI.hpp>
#include <cstdio>

// Paints an icon at one size, for desktops that take no vector pictures.

namespace {

bool paint(const std::string& drawing, const std::string& picture, int size)
{
    QSvgRenderer renderer(QString::fromStdString(drawing));
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    return renderer.isValid() && image.save(QString::fromStdString(picture), "PNG");
}

int run(int argc, char** argv)
{
    std::string drawing;
    std::string picture;
    int size = 0;
    CLI::App options("Paints a vector drawing as a square PNG picture", "veyrand-icons");
    options.add_option("DRAWING", drawing, "The SVG file")->required();
    options.add_option("PICTURE", picture, "The PNG file to write")->required();
    options.add_option("SIZE", size, "Its width and height, in pixels")
        ->required()
        ->check(CLI::Range(1, 4096));
    CLI11_PARSE(options, argc, argv);
    if (!paint(drawing, picture, size)) {
        std::fprintf(stderr, "veyrand-icons: %s could not be painted as %s\n", drawing.c_str(),
            picture.c_str());
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "veyrand-icons: %s\n", error.what());
        return 1;
    }
}
