#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <CLI/CLI.hpp>
#include <iostream>

// Paints an icon at one size, as the desktop would show it where it takes no vector pictures.
int main(int argc, char* argv[])
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

    QSvgRenderer renderer(QString::fromStdString(drawing));
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    if (!renderer.isValid() || !image.save(QString::fromStdString(picture), "PNG")) {
        std::cerr << "veyrand-icons: " << drawing << " could not be painted as " << picture << '\n';
        return 1;
    }
    return 0;
}
