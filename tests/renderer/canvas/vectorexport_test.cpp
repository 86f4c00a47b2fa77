#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/foundation/textformat.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaydrawcurve.h"
#include "graphics3d/overlays/overlayrectangle.h"
#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "renderer/canvas/offscreencanvas.h"
#include "tests/renderer/support/pdffile.h"
#include "tests/renderer/support/pngfile.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>
#include <stdexcept>

namespace vxrenderer {
namespace {

using vxgraphics3d::HardcopySettings;
using vxgraphics3d::Overlay;
using vxgraphics3d::OverlayDrawCurve;
using vxgraphics3d::OverlayRectangle;
using vxgraphics3d::PostRecord;
using vxgraphics3d::SceneGraphPlotGraph;
using vxgraphics3d::SceneGraphPlotPointLabel;
using vxgraphics3d::SceneGraphPlotSurface3d;
using Record = vxdatacarrier::PostDataObject;

constexpr int c_width = 480;
constexpr int c_height = 320;
constexpr int c_dpi = 96;

class VectorExport : public testing::Test {
protected:
    VectorExport()
    {
        m_settings.setDpi(c_dpi);
        m_settings.setTitleShown(true);
        m_settings.setAxisShown(true);
        m_settings.setLegendsShown(true);
        m_settings.setAxisOrientationShown(true);
        m_settings.setMultisampleSetting(4);
    }
    ~VectorExport() override { m_scene.group->removeAllPlots(); }

    /// A hill whose title is "Hill of bands".
    void addHill()
    {
        GridRecord record;
        record.cells = 16;
        record.value = [](double x, double y) { return x * y; };
        record.height = [](double x, double y) { return 0.5 * x * y; };
        m_scene.add<SceneGraphPlotSurface3d>(1, record, {0x0000ff, 0x00ff00, 0xff0000})
            ->setTitle(TextFormat::plain, "Hill of bands");
    }
    /// Two lines, the second one dashed and with symbols.
    void addGraph()
    {
        const auto graph = boost::make_shared<SceneGraphPlotGraph>(2);
        PostRecord record = PostRecord().role(Record::HeightData, 0);
        record.group({{0, 1, 2, 3}}, {}, {{0, 3, 1, 2}}).group({{0, 1, 2, 3}}, {}, {{3, 0, 2, 2}});
        graph->fillPlot(record);
        graph->setLineWidth(3.0f);
        graph->getLines()[1]->m_lineStyle = LineStyle::dashed;
        graph->getLines()[1]->m_marker = RenderSymbol::triangleUp;
        graph->getLines()[1]->m_numMarkers = 4;
        m_scene.group->addPlot(graph);
    }
    void look(bool isFlat)
    {
        if (isFlat) {
            showFlat(m_canvas, m_scene);
        } else {
            m_canvas.setScene(m_scene.scene);
            lookFrom(m_canvas, 30.0, 40.0);
        }
        m_canvas.zoomExtents();
    }
    std::vector<std::uint8_t> exported(HardcopyFormat format)
    {
        return m_canvas.encodeHardcopy(m_settings, c_width, c_height, format);
    }
    std::string exportedSvg()
    {
        const std::vector<std::uint8_t> bytes = exported(HardcopyFormat::svg);
        return {bytes.begin(), bytes.end()};
    }
    /// The export as an image, with which vectors are compared.
    Picture exportedPicture()
    {
        const PngFile file(exported(HardcopyFormat::png));
        Picture picture = {file.width, file.height, {}};
        for (std::size_t i = 0; i < file.pixels.size(); i += 3) {
            picture.bytes.insert(picture.bytes.end(), {file.pixels[i], file.pixels[i + 1], file.pixels[i + 2], 255});
        }
        return picture;
    }

    /// A translucent rectangle with a wide border, on the plane z = 0.
    static boost::shared_ptr<OverlayRectangle> rectangle(double x0, double y0, double x1, double y1)
    {
        const auto shape = boost::make_shared<OverlayRectangle>();
        shape->setStart(x0, y0);
        shape->setEnd(x1, y1);
        shape->setUseColor(true);
        shape->setFilled(true);
        shape->setLineSize(5.0f);
        shape->setFillColor({255, 0, 0, 128});
        shape->setOutlineColor({0, 0, 255, 255});
        return shape;
    }

    TestScene m_scene;
    OffscreenCanvas m_canvas{c_width, c_height, 4};
    HardcopySettings m_settings;
};

/// The part of the pixels in which two pictures clearly differ also from the neighbours of the other one: another
/// program draws borders in another way, by half a pixel.
double differingPart(const Picture& one, const Picture& other)
{
    const auto isNear = [](const Rgb& a, const Rgb& b) {
        return std::abs(a[0] - b[0]) < 64 && std::abs(a[1] - b[1]) < 64 && std::abs(a[2] - b[2]) < 64;
    };
    int count = 0;
    for (int y = 1; y + 1 < one.height; ++y) {
        for (int x = 1; x + 1 < one.width; ++x) {
            bool isFound = false;
            for (int i = 0; i < 9; ++i) {
                isFound = isFound || isNear(one.at(x, y), other.at(x + i % 3 - 1, y + i / 3 - 1));
            }
            count += isFound ? 0 : 1;
        }
    }
    return static_cast<double>(count) / (one.width * one.height);
}

TEST_F(VectorExport, looksLikeThePicture)
{
    const auto compare = [&](const char* what) {
        const std::vector<std::uint8_t> bytes = exported(HardcopyFormat::pdf);
        const Picture page = PdfFile(bytes).page(c_dpi);
        const Picture pixels = exportedPicture();
        ASSERT_EQ(page.width, c_width);
        ASSERT_EQ(page.height, c_height);
        EXPECT_LT(differingPart(page, pixels), 0.002) << what;
        EXPECT_LT(differingPart(pixels, page), 0.002) << what;
    };
    addHill();
    for (const bool isFlat : {true, false}) {
        look(isFlat);
        compare(isFlat ? "flat" : "space");
    }
    m_canvas.getSceneSettings()->setGlobalOpacity(0.5f);
    compare("translucent");
    m_canvas.getSceneSettings()->setGlobalOpacity(1.0f);
    m_scene.group->removeAllPlots();
    addGraph();
    look(true);
    compare("graphs");
}

TEST_F(VectorExport, hasTextsAsTextsAndThePictureOfTheDataAlone)
{
    addHill();
    look(true);
    m_settings.setLegendsShown(false);
    const PdfFile file(exported(HardcopyFormat::pdf));
    const std::string text = file.text();
    for (const char* word : {"Hill of bands\n", "0.0\n", "0.5\n", "1.0\n"}) {
        EXPECT_NE(text.find(word), std::string::npos) << word << " in " << text;
    }
    // The image has the size of the square that it shows, so that no text is in it, and the mask of its opacity.
    const std::string images = file.images();
    EXPECT_EQ(std::count(images.begin(), images.end(), '\n'), 4) << images;
    const Picture pixels = exportedPicture();
    std::set<int> columns;
    std::set<int> rows;
    for (int y = 0; y < c_height; ++y) {
        for (int x = 0; x < c_width; ++x) {
            const auto [smallest, largest] = std::ranges::minmax(pixels.at(x, y));
            if (largest - smallest > 40) {
                columns.insert(x);
                rows.insert(y);
            }
        }
    }
    const std::string svg = exportedSvg();
    const auto number = [&](const std::string& before) {
        const std::size_t at = svg.find(before, svg.find("<image "));
        return std::atof(svg.c_str() + at + before.size());
    };
    EXPECT_NEAR(number(" width=\""), static_cast<double>(columns.size()), 1.0);
    EXPECT_NEAR(number(" height=\""), static_cast<double>(rows.size()), 1.0);
}

TEST_F(VectorExport, viewsOfGraphsHaveNoImage)
{
    addGraph();
    look(true);
    const std::string images = PdfFile(exported(HardcopyFormat::pdf)).images();
    EXPECT_EQ(std::count(images.begin(), images.end(), '\n'), 2) << images;
    EXPECT_EQ(exportedSvg().find("<image"), std::string::npos);
    look(false);
    EXPECT_NE(exportedSvg().find("<image"), std::string::npos) << "lines in space hide each other";
}

TEST_F(VectorExport, labelsThatNothingCoversAreTexts)
{
    m_scene.addSquare(1, 0x00ff00, 1.0);
    const auto labels = boost::make_shared<SceneGraphPlotPointLabel>(3, 2);
    labels->setLabels({"above", "below", "aside"});
    labels->fillPlot(
        PostRecord().bounds({{0, 3}, {0, 1}, {0, 2}}).group({{0.5, 0.5, 3.0}, {0.5, 0.5, 0.5}, {2.0, 0.0, 0.0}}, {}));
    m_scene.group->addPlot(labels);
    showFromAbove(m_canvas, m_scene);
    m_canvas.zoomExtents();
    const std::string text = PdfFile(exported(HardcopyFormat::pdf)).text();
    EXPECT_NE(text.find("above"), std::string::npos) << text;
    EXPECT_NE(text.find("aside"), std::string::npos) << text;
    EXPECT_EQ(text.find("below"), std::string::npos) << text;
}

TEST_F(VectorExport, overlaysAreVectors)
{
    const auto compare = [&](const char* what) {
        const Picture page = PdfFile(exported(HardcopyFormat::pdf)).page(c_dpi);
        const Picture pixels = exportedPicture();
        EXPECT_LT(differingPart(page, pixels), 0.002) << what;
        EXPECT_LT(differingPart(pixels, page), 0.002) << what;
        return page;
    };
    addGraph();
    look(true);
    const auto overlay = boost::make_shared<Overlay>();
    m_canvas.setOverlay(overlay);
    overlay->addOverlayObject(rectangle(0.2, 0.2, 1.4, 1.4), 1);
    // A square with a hole, whose edges are in no order.
    const auto curve = boost::make_shared<OverlayDrawCurve>();
    curve->setFilled(true);
    curve->setDisplayVertexNumbers(true);
    for (const double inset : {0.0, 0.3}) {
        const int first = curve->addVertex(1.6 + inset, 1.6 + inset);
        curve->addVertex(2.8 - inset, 1.6 + inset);
        curve->addVertex(2.8 - inset, 2.8 - inset);
        curve->addVertex(1.6 + inset, 2.8 - inset);
        for (const int i : {2, 0, 3, 1}) {
            const int edge = curve->addEdge(first + i, first + (i + 1) % 4);
            curve->addControlPoint(edge, 0.0, 0.0);
            curve->addControlPoint(edge, 0.0, 0.0);
        }
    }
    overlay->addOverlayObject(curve, 2);
    compare("flat");
    EXPECT_EQ(exportedSvg().find("<image"), std::string::npos);
    EXPECT_NE(PdfFile(exported(HardcopyFormat::pdf)).text().find("V7"), std::string::npos);

    // One that begins behind the viewer.
    m_scene.group->removeAllPlots();
    overlay->removeOverlayObject(curve);
    overlay->addOverlayObject(rectangle(-50.0, 0.4, 50.0, 0.6), 3);
    m_scene.addSquare(1, 0x00ff00, 0.0);
    m_canvas.setScene(m_scene.scene);
    lookFrom(m_canvas, 5.0, 15.0);
    m_canvas.zoomExtents();
    const Picture page = compare("in space");
    EXPECT_GT(page.countDrawn(0, 0, c_width, c_height), c_width * c_height / 10);
}

TEST_F(VectorExport, triadIsVectorsWithTheShadingOfThePicture)
{
    m_settings.setAxisShown(false);
    for (const double elevation : {30.0, -20.0, 90.0}) {
        m_canvas.setScene(m_scene.scene);
        lookFrom(m_canvas, 40.0, elevation);
        EXPECT_EQ(exportedSvg().find("<image"), std::string::npos);
        const Picture page = PdfFile(exported(HardcopyFormat::pdf)).page(c_dpi);
        const Picture pixels = exportedPicture();
        ASSERT_GT(page.countDrawn(0, 0, c_width, c_height), 300);
        EXPECT_LT(differingPart(page, pixels), 0.0002) << elevation;
        EXPECT_LT(differingPart(pixels, page), 0.0002) << elevation;
    }
}

TEST_F(VectorExport, pagesHaveTheirSizeAndTexts)
{
    m_settings.setDpi(300);
    m_settings.setFileTitle("A <title> & \xC3\xA4");
    m_settings.setFileCreator("Someone");
    addHill();
    look(true);
    const std::string info = PdfFile(exported(HardcopyFormat::pdf)).info();
    for (const char* line : {"A <title> & \xC3\xA4\n", "Creator:         Someone\n",
                             "Page size:       115.2 x 76.8 pts", "Pages:           1\n"}) {
        EXPECT_NE(info.find(line), std::string::npos) << line << info;
    }
    const std::string svg = exportedSvg();
    for (const char* part : {"width=\"115.2pt\" height=\"76.8pt\"", "<title>A &lt;title&gt; &amp; \xC3\xA4</title>",
                             ">Someone</creator>"}) {
        EXPECT_NE(svg.find(part), std::string::npos) << part;
    }
}

TEST_F(VectorExport, sameViewsGiveTheSameBytes)
{
    addHill();
    look(false);
    const std::vector<std::uint8_t> pdf = exported(HardcopyFormat::pdf);
    const std::string svg = exportedSvg();
    EXPECT_EQ(exported(HardcopyFormat::pdf), pdf);
    EXPECT_EQ(exportedSvg(), svg);
    EXPECT_EQ(std::string(pdf.begin(), pdf.end()).find("CreationDate"), std::string::npos);
}

TEST_F(VectorExport, sizesThatPicturesCannotHaveAreRefused)
{
    EXPECT_THROW(m_canvas.encodeHardcopy(m_settings, 0, 10, HardcopyFormat::pdf), std::invalid_argument);
    EXPECT_THROW(m_canvas.encodeHardcopy(m_settings, 10, 1 << 20, HardcopyFormat::svg), std::invalid_argument);
    // Without a scene there is the background alone.
    m_settings.setBackground(0xff0000, 0x0000ff);
    const Picture page = PdfFile(exported(HardcopyFormat::pdf)).page(c_dpi);
    EXPECT_GT(page.at(10, 2)[0], 245);
    EXPECT_GT(page.at(10, c_height - 3)[2], 245);
}

} // namespace
} // namespace vxrenderer
