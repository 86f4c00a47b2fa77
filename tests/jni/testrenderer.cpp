#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/irenderercanvas.h"
#include "graphics3d/canvas/irenderersetup.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/foundation/image.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/settings/contextdata.h"
#include "graphics3d/settings/rendererinfo.h"
#include "jni/support/native.h"
#include "tests/support/testleaf.h"

#include <boost/make_shared.hpp>

#include <new>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "com_vexane_graphics3d_TestRenderer.h"

using namespace vxgraphics3d;

namespace {

/// Settings refer to it during their lifetime.
class TestSetup : public IRendererSetup {
} testSetup;

/// A view of a renderer that draws nothing.
class TestCanvas : public IRendererCanvas {
public:
    boost::shared_ptr<Canvas3dSettings> getCanvas3dSettings() override { return m_settings; }
    boost::shared_ptr<CanvasPickSettings> getCanvasPickSettings() override { return m_pickSettings; }
    boost::shared_ptr<SceneSettings> getSceneSettings() override { return m_sceneSettings; }
    boost::shared_ptr<ContextData> getContextData() override { return context; }

    /// Shows another scene, or none.
    void show(boost::shared_ptr<Scene> scene)
    {
        if (m_scene) {
            m_scene->disconnect(m_sceneSettings);
        }
        m_sceneSettings = scene ? scene->createSceneSettings(testSetup) : nullptr;
        m_scene = std::move(scene);
    }

    boost::shared_ptr<ContextData> context;

private:
    boost::shared_ptr<Canvas3dSettings> m_settings = boost::make_shared<Canvas3dSettings>();
    boost::shared_ptr<CanvasPickSettings> m_pickSettings = boost::make_shared<CanvasPickSettings>();
    boost::shared_ptr<Scene> m_scene;
    boost::shared_ptr<SceneSettings> m_sceneSettings;
};

struct TestMonitor : RendererInfo::MonitorInfo {
    explicit TestMonitor(std::set<std::string> extensions)
    {
        m_deviceId = "left";
        m_videoCardVendor = "vendor";
        m_videoCardName = "card";
        m_videoCardVersion = "1.2";
        m_openGlExtensions = std::move(extensions);
        m_maxNumberOfLights = 8;
        m_maxTextureSize = 4096;
        m_maxVertexArraySize = 100000;
        m_maxIndexArraySize = 200000;
    }
};

/// Monitor 0 has three extensions, 1 has one, 2 none; 3 is null and 4 has no owner.
struct TestInfo : RendererInfo {
    TestInfo()
    {
        m_missingRequirements = {"no context", "no window"};
        m_rendererType = "test";
        m_monitors = {boost::make_shared<TestMonitor>(std::set<std::string>{"c", "a", "b"}),
                      boost::make_shared<TestMonitor>(std::set<std::string>{"only"}),
                      boost::make_shared<TestMonitor>(std::set<std::string>{}),
                      nullptr,
                      {boost::shared_ptr<void>(), &m_unowned}};
        m_hasDoubleBuffering = true;
        m_numberOfMultisampleSettings = 2;
        m_multisampleSettings[0] = 8;
        m_multisampleSettings[1] = 4;
        m_maxNumberOfAvailableLights = 6;
        m_maxTextureSize = 2048;
        m_maxVertexArraySize = 50000;
        m_maxIndexArraySize = 60000;
    }

private:
    MonitorInfo m_unowned;
};

/// An object that no native knows.
struct Foreign {};

/// Throws one of the four kinds of failure that a native distinguishes.
[[noreturn]] void throwKind(int kind)
{
    switch (kind) {
    case 0:
        throw vxbase::Exception("place.cpp", 17, "Some_key", "why");
    case 1:
        throw std::bad_alloc();
    case 2:
        throw std::runtime_error("in words \xC3\xA4");
    default:
        throw kind;
    }
}

} // namespace

VX_NATIVE(void, TestRenderer, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<TestCanvas>()); });
}

VX_NATIVE(void, TestRenderer, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] {
        if (const auto open = detach<TestCanvas>(env, self)) {
            open->show(nullptr);
        }
    });
}

VX_NATIVE(void, TestRenderer, openContext)(JNIEnv* env, jclass, jobject self, jint antialiasingType)
{
    native(env, "openContext", [&] {
        peer<TestCanvas>(env, self).context = boost::make_shared<ContextData>(ContextData{
            .colorBits = 1,
            .redBits = 2,
            .greenBits = 3,
            .blueBits = 4,
            .alphaBits = 5,
            .depthBits = 6,
            .stencilBits = 7,
            .accumBufferRedBits = 8,
            .accumBufferGreenBits = 9,
            .accumBufferBlueBits = 10,
            .accumBufferAlphaBits = 11,
            .doubleBuffered = true,
            .hardwareAccelerated = false,
            .antialiasingType = antialiasingType,
            .multipleSamples = 12,
        });
    });
}

VX_NATIVE(void, TestRenderer, show)(JNIEnv* env, jclass, jobject self, jobject sceneOrNull)
{
    native(env, "show", [&] {
        peer<TestCanvas>(env, self).show(sceneOrNull != nullptr ? share<Scene>(env, sceneOrNull, "sceneOrNull")
                                                                : nullptr);
    });
}

VX_NATIVE(void, TestRenderer, setRenderMode)(JNIEnv* env, jclass, jobject self, jint mode)
{
    native(env, "setRenderMode", [&] {
        peer<TestCanvas>(env, self).getCanvas3dSettings()->setRenderMode(
            static_cast<Canvas3dSettings::RenderMode>(mode));
    });
}

VX_NATIVE(jint, TestRenderer, getChangedFlags)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getChangedFlags",
                  [&] { return static_cast<jint>(peer<TestCanvas>(env, self).getSceneSettings()->getChangedFlags()); });
}

VX_NATIVE(void, TestRenderer, connectInfo)(JNIEnv* env, jclass, jobject info)
{
    native(env, "connectInfo", [&] { attach(env, info, boost::make_shared<TestInfo>()); });
}

VX_NATIVE(void, TestRenderer, connectObject)(JNIEnv* env, jclass, jobject object)
{
    native(env, "connectObject", [&] { attach(env, object, TestLeaf::create()); });
}

VX_NATIVE(void, TestRenderer, connectForeign)(JNIEnv* env, jclass, jobject self)
{
    native(env, "connectForeign", [&] { attach(env, self, boost::make_shared<Foreign>()); });
}

VX_NATIVE(void, TestRenderer, announce)(JNIEnv* env, jclass, jobject infoOrNull)
{
    native(env, "announce", [&] {
        Canvas3dGlobalSettings::setRendererInfo(
            infoOrNull != nullptr ? share<RendererInfo>(env, infoOrNull, "infoOrNull") : nullptr);
    });
}

VX_NATIVE(jstring, TestRenderer, describe)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "describe", [&] {
        const SceneGraphPlot& plot = peer<SceneGraphPlot>(env, self);
        return toJavaNew(env, std::string(plot.isReverseColorTable() ? "reverse" : "forward") + ", scale " +
                                  std::to_string(plot.getHeightScale()) + ", offset " +
                                  std::to_string(plot.getPlotPlaneOffset()) +
                                  (plot.isValid() ? ", filled" : ", empty"));
    });
}

VX_NATIVE(jstring, TestRenderer, describeGraph)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "describeGraph", [&] {
        const SceneGraphPlotGraph& plot = peer<SceneGraphPlotGraph>(env, self);
        std::string text = "width " + std::to_string(static_cast<int>(plot.getLineWidth()));
        text += plot.isShowLegends() ? ", legends" : "";
        text += plot.isShowUnitCircle() ? ", unit circle" : "";
        text += plot.isMarkersInterpolation() ? "" : ", at points";
        for (const auto& line : plot.getLines()) {
            text += "; " + std::to_string(static_cast<int>(line->m_marker)) + " " +
                    std::to_string(static_cast<int>(line->m_lineStyle)) + " " +
                    std::to_string(plot.getColorOf(*line).toRgb()) + " " + std::to_string(line->m_numMarkers) + " " +
                    line->m_legendDescription.toUtf8();
        }
        return toJavaNew(env, text);
    });
}

VX_NATIVE(jstring, TestRenderer, describeModel)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "describeModel", [&] {
        const auto& model = peer<SceneGraphPhysicsObject>(env, self);
        std::ostringstream text;
        const auto writeFlags = [&](const auto& parts, const char* name) {
            text << name << std::hex;
            for (int i = 0; i < parts.getNumParts(); ++i) {
                text << ' ' << parts.getPart(i).getMarkFlags();
            }
            text << std::dec << '\n';
        };
        writeFlags(model.getParts().getPoints(), "points");
        writeFlags(model.getLines(), "lines");
        writeFlags(model.getSheets(), "sheets");
        writeFlags(model.getParts().getSubdomains(), "subdomains");
        for (const auto& [name, count] : model.getSheets().getMaterials()) {
            text << "material " << name << ' ' << count << '\n';
        }
        for (const auto& [name, image] : model.getImages()) {
            text << "image " << name;
            for (int i = 0; image && i < image->getWidth() * image->getHeight(); ++i) {
                text << ' ' << std::hex << image->getData()[i] << std::dec;
            }
            text << '\n';
        }
        for (int level = 0; level < ObjectParts::c_numLevels; ++level) {
            for (const auto& [index, marker] : model.getMarkers(level)) {
                text << "marker " << level << ' ' << index << ' ' << marker->getPosition();
                for (const Vector3f& direction : *marker->getDirections()) {
                    text << ' ' << direction + Vector3f();
                }
                text << '\n';
            }
        }
        for (const auto& connector : model.getConnectors()) {
            text << "connector " << connector->getPosition() << ' ' << connector->getPoints().size() << '\n';
        }
        text << (model.isShowPhysicsMarkers() ? "" : "markers off\n");
        return toJavaNew(env, text.str());
    });
}

VX_NATIVE(jstring, TestRenderer, titleOf)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "titleOf", [&] {
        vxbase::UString title;
        peer<SceneGraphPlotGroup>(env, self).getTotalTitle(title);
        return toJavaNew(env, title.toUtf8());
    });
}

VX_NATIVE(void, TestRenderer, fail)(JNIEnv* env, jclass, jint kind)
{
    native(env, "fail", [&] { throwKind(kind); });
}

VX_NATIVE(jboolean, TestRenderer, isZeroAfterFailure)(JNIEnv* env, jclass, jint kind)
{
    const jboolean truth = native(env, "boolean", [&]() -> jboolean { throwKind(kind); });
    const jfloat real = native(env, "float", [&]() -> jfloat { throwKind(kind); });
    const jobject object = native(env, "object", [&]() -> jobject { throwKind(kind); });
    const bool isPending = env->ExceptionCheck() != JNI_FALSE;
    env->ExceptionClear();
    return toJava(isPending && truth == JNI_FALSE && real == 0.0f && object == nullptr);
}
