// Records the drawings of src/ui for a system without Qt SVG, and paints the program's icon.
//   record-pictures <src/ui> <folder>
// Leaves icons/*.picture with recorded.qrc, theme.qrc with its arrows as PNGs, and velcro-<size>.png.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>
#include <QTextStream>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + path.toStdString());
    }
    return file.readAll();
}

void writeText(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

/// Line icons come out black; the program inks them.
void record(const QString& svg, const QString& to) {
    QSvgRenderer renderer(contentOf(svg).replace("currentColor", "#000000"));
    QPicture picture;
    picture.setBoundingRect(renderer.viewBox()); // before it is painted, else its ink alone counts
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, renderer.viewBoxF());
    painter.end();
    if (!renderer.isValid() || !picture.save(to)) {
        throw std::runtime_error("cannot record " + svg.toStdString());
    }
}

void paint(const QString& svg, int size, const QString& to) {
    QSvgRenderer renderer(svg);
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    if (!renderer.isValid() || !image.save(to)) {
        throw std::runtime_error("cannot paint " + svg.toStdString());
    }
}

QString list(const QString& prefix, const QStringList& files) {
    return u"<RCC><qresource prefix=\"%1\">%2</qresource></RCC>\n"_s.arg(prefix, files.join(u""));
}

void recordAll(const QDir& ui, const QDir& out) {
    out.mkpath(u"icons"_s);
    QStringList files;
    for (const QFileInfo& svg : QDir(ui.filePath(u"icons"_s)).entryInfoList({u"*.svg"_s})) {
        const QString name = "icons/" + svg.completeBaseName() + ".picture";
        record(svg.filePath(), out.filePath(name));
        files << "<file>" + name + "</file>";
    }
    writeText(out.filePath(u"recorded.qrc"_s), list(u"/velcro"_s, files));

    // The style sheets ask for drawings by their names; what lies under one is told by its content.
    constexpr int sharpAtFourTimes = 96;
    QStringList theme;
    for (const QFileInfo& sheet : ui.entryInfoList({u"*.qss"_s})) {
        theme << "<file alias=\"" + sheet.fileName() + "\">" + sheet.absoluteFilePath() + "</file>";
    }
    for (const QFileInfo& svg : QDir(ui.filePath(u"pictures"_s)).entryInfoList({u"down*.svg"_s})) {
        const QString name = svg.completeBaseName() + ".png";
        paint(svg.filePath(), sharpAtFourTimes, out.filePath(name));
        theme << "<file alias=\"" + svg.fileName() + "\">" + name + "</file>";
    }
    writeText(out.filePath(u"theme.qrc"_s), list(u"/theme"_s, theme));
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        paint(ui.filePath(u"icons/product-logo.svg"_s), size,
              out.filePath(u"velcro-%1.png"_s.arg(size)));
    }
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        QTextStream(stderr) << "usage: record-pictures <src/ui> <folder>\n";
        return 2;
    }
    try {
        recordAll(QDir(QString::fromLocal8Bit(argv[1])), QDir(QString::fromLocal8Bit(argv[2])));
    } catch (const std::exception& error) {
        QTextStream(stderr) << "record-pictures: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
