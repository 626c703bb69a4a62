#include "ratioreporter.h"

#include "canvas/imagelayoutitem.h"

#include <QGraphicsScene>
#include <QImage>

namespace {

void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&) { }

/// A zoom step in and one out, with that many regions, each of which is projected once and has made
/// its connection.
BenchmarkLoop zoomWithRegions(int regions)
{
    return [regions](benchmark::State& state) {
        const QtMessageHandler log = qInstallMessageHandler(ignoreMessage);
        QImage picture(2000, 1500, QImage::Format_RGB888);
        picture.fill(Qt::gray);
        QGraphicsScene scene;
        auto* const image = new ImageLayoutItem(nullptr);
        scene.addItem(image);
        image->setImage(&picture);
        image->setSize(800.0, 600.0);
        for (int i = 0; i < regions; ++i) {
            image->rectangles.addItem();
        }
        for (auto _ : state) {
            image->zoomIn();
            image->zoomOut();
        }
        image->setImage(nullptr);
        qInstallMessageHandler(log);
    };
}

const bool pairsAdded = [] {
    addPair("zoom step, 50 regions over 5", 11.0, zoomWithRegions(5), zoomWithRegions(50));
    return true;
}();

} // namespace
