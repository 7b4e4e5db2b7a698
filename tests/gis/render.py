"""Has QGIS draw a GeoPackage as it opens it, with the styles that are in it, and tells what it drew.

usage: render.py GEOPACKAGE PICTURE

Writes the picture and prints as JSON: of each layer the number of objects, how it is drawn, its system of coordinates
and the colours that its legend has by code; the labels as they were drawn; and how many dots of each colour there are.
"""

import collections
import json
import sys

from qgis.core import (
    QgsApplication,
    QgsMapRendererParallelJob,
    QgsMapSettings,
    QgsProject,
    QgsVectorLayer,
)
from qgis.PyQt.QtCore import QSize
from qgis.PyQt.QtGui import QColor, QImage

names = ("teksten", "punten", "lijnen")  # the topmost first


def describe(layer):
    """What QGIS made of a layer."""
    renderer = layer.renderer()
    legend = {}
    if renderer.type() == "categorizedSymbol":
        for category in renderer.categories():
            legend[category.value() or ""] = category.symbol().color().name()
    return {
        "count": layer.featureCount(),
        "renderer": renderer.type(),
        "legend": legend,
        "labels": layer.labelsEnabled(),
        "system": layer.crs().authid(),
    }


def dots(image):
    """How many dots there are of each colour."""
    image = image.convertToFormat(QImage.Format_RGB32)
    bits = image.constBits()
    bits.setsize(image.sizeInBytes())
    return {f"#{dot & 0xFFFFFF:06x}": count for dot, count in collections.Counter(memoryview(bits).cast("I")).items()}


def main(geopackage, picture):
    """Opens the layers as a person would who drags the file into the window."""
    application = QgsApplication([], False)
    application.initQgis()
    try:
        layers = [QgsVectorLayer(f"{geopackage}|layername={name}", name, "ogr") for name in names]
        for layer in layers:
            if not layer.isValid():
                raise SystemExit(f"{layer.name()} does not open")
        QgsProject.instance().addMapLayers(layers)
        settings = QgsMapSettings()
        settings.setLayers(layers)
        settings.setDestinationCrs(layers[0].crs())
        settings.setBackgroundColor(QColor("white"))
        settings.setOutputSize(QSize(2400, 1600))
        settings.setOutputDpi(96)
        extent = layers[2].extent()
        extent.scale(1.05)
        settings.setExtent(extent)
        job = QgsMapRendererParallelJob(settings)
        job.start()
        job.waitForFinished()
        image = job.renderedImage()
        if not image.save(picture):
            raise SystemExit(f"{picture} cannot be written")
        told = {layer.name(): describe(layer) for layer in layers}
        labels = job.takeLabelingResults()
        told["drawn"] = [{"text": label.labelText, "rotation": label.rotation} for label in labels.allLabels()]
        told["dots"] = dots(image)
        told["errors"] = [error.message for error in job.errors()]
        print(json.dumps(told))
    finally:
        QgsProject.instance().clear()
        application.exitQgis()


main(*sys.argv[1:])
