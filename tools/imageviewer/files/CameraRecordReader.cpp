#include "tools/imageviewer/files/CameraRecordReader.h"

CameraRecordReader::CameraRecordReader(CameraConnection &connection, QObject *parent)
    : QObject(parent), m_connection(connection)
{ }
void CameraRecordReader::read(Done done)
{
    done(m_record);
}
void CameraRecordReader::refresh() { }
