/// @file
/// Writing a document to a file without losing the packet or the file that was there.

#ifndef ZELINTERCHANGEDATA_ZELDATAREPLACEFILE_H
#define ZELINTERCHANGEDATA_ZELDATAREPLACEFILE_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFormatType_tags.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"

#include <string>

namespace ZelInterchangeData {

class i_ZelInterchangeDataCore;

/// Writes the packet of @p document to the file at @p path, with the bytes that the document's own
/// `writeFile` writes, and reports every failure. A reader sees the old file or the new one, never a
/// part of either.
///
/// Writes a new file in the same folder, flushes it to the disk, gives it the name of the old file,
/// and flushes the folder. It does not flush the folder on Windows, and not if you may not list it.
/// Where the file system can flush neither files nor folders, it goes on without.
/// - If @p path is a symbolic link, replaces the file that it leads to, even if there is none yet.
/// - The new file has the permissions of the old one, and its owner and group if the system allows
///   that; if not, its group and all others get only what both had, and so they do if the old file has
///   an access control list. Lists, extended attributes and set-ID bits are lost. Without an old file,
///   it has the permissions of any new file. Other names of the old file (hard links) keep the old
///   contents.
/// - You need permission to create and rename files in the folder, and to write to the old file.
/// - Refuses everything that is not a regular file: folders, devices, pipes, and links to open files
///   such as `/dev/stdout`. Refuses a file without write permission.
///
/// On Windows, @p path is UTF-8; if a link leads to no file, the new file replaces the link.
///
/// Gets the packet from the document's `writeString` and stores no last error itself.
/// - The code of a failed `writeString`, such as #ZelData_InvalidArgument for a document without a
///   header; a @p format other than #ZelDataFormat_Xmp is one of its failures. @p systemError is 0.
/// - #ZelData_FileOpenFailed: the file cannot be opened, written, flushed or replaced.
///   @p systemError is the number of the system's error, never 0: an errno value, on Windows one of
///   GetLastError(). `std::system_category()` knows its text. A folder gives EISDIR, anything else
///   that is not a regular file ENOTSUP; on Windows, these are ERROR_ACCESS_DENIED and
///   ERROR_NOT_SUPPORTED.
/// - #ZelData_OutOfMemory, or #ZelData_InternalError if a class of yours throws another exception:
///   @p systemError is 0.
///
/// After a failure, the old file is unchanged and nothing else is left in the folder, with these
/// exceptions:
/// - If flushing the folder fails, the new file is there, but a crash of the system may bring back
///   the old one.
/// - If Windows removes the old file and then fails to rename the new one, the new file is left
///   under its temporary name: `.ZelInterchangeData-` and 16 digits.
/// - If the process is killed, or if the folder lets nobody rename and remove files, a file with such a
///   name may be left.
///
/// On success, @p systemError is 0.
///
/// Throws nothing, not even `std::bad_alloc`. It is not `noexcept`, so that a thread can end (by
/// cancellation or `pthread_exit`) in a `writeString` of yours.
ZELINTERCHANGEDATA_API ZelDataResult_tags
replaceFile(const i_ZelInterchangeDataCore& document, const std::string& path, int& systemError,
            ZelDataFormatType_tags format = ZelDataFormat_Xmp);

} // namespace ZelInterchangeData

#endif
