#include "graphics3d/readers/postdatareader.h"

#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/sceneplotfilereader.h"

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

} // namespace vxgraphics3d
