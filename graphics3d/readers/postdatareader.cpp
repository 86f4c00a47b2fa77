#include "graphics3d/readers/postdatareader.h"

#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/readerreports.h"
#include "graphics3d/readers/sceneobjectfilereader.h"
#include "graphics3d/readers/sceneplotfilereader.h"

#include <utility>

namespace vxgraphics3d {

bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName)
{
    using vxdatacarrier::PostDataObject;
    switch (record.m_plotKind) {
    case PostDataObject::Surface2d:
        return ScenePlotFileReader::readSurfacePlot2d(record, fileName);
    case PostDataObject::Surface3d:
        return ScenePlotFileReader::readSurfacePlot3d(record, fileName);
    case PostDataObject::IsoSurface:
        return ScenePlotFileReader::readIsoSurfacePlot3dData(record, fileName);
    default:
        return false;
    }
}

bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName, ReaderError& error)
{
    ReaderError reported = {"No file holds data of plot kind " + std::to_string(record.m_plotKind)};
    const ReaderErrorKeeper keeper(reported);
    if (readPostData(record, fileName)) {
        return true;
    }
    error = std::move(reported);
    return false;
}

bool readDrawObjectSolid(vxdatacarrier::RenderDraw3D& record, const std::string& fileName, const Vector3f& offset,
                         ReaderError& error)
{
    ReaderError reported;
    const ReaderErrorKeeper keeper(reported);
    if (SceneObjectFileReader::readDrawObjectSolid(record, fileName, offset)) {
        return true;
    }
    error = std::move(reported);
    return false;
}

} // namespace vxgraphics3d
