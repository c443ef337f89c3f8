// TOSSpecific: all that depends on the host, as static operations, the same on every
// platform. It has no instances.
//
// Failures are TQDAException; each operation names its status. Threads: no state and no
// locks; blocking calls run on the caller's thread.

#ifndef QDACORE_OS_TOSSPECIFIC_H
#define QDACORE_OS_TOSSPECIFIC_H

#include <string>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/logging/ILogger.h>

namespace NZRVQDA20 {

class ICIMNamespace;
class INamespaceConsumer;

class TOSSpecific {
 public:
  // The file names of plug-ins, on every platform.
  QDACORE_EXPORT static const std::string kDynamicModuleExtension;  // ".dll"
  QDACORE_EXPORT static const std::string kQDAPluginExtension;      // "pi"
  QDACORE_EXPORT static const std::string kPluginExtension;         // ".pi.dll"
  QDACORE_EXPORT static const std::string kSpecificationExtension;  // ".properties.xml"
  QDACORE_EXPORT static const std::string kRegistrationExtension;   // ".registration.xml"
  // A single backslash, on every platform.
  QDACORE_EXPORT static const std::string kFileSeparator;
  QDACORE_EXPORT static const std::string libx86IntrAddrFile;  // "intr_address.tmp"

  // --- Log -----------------------------------------------------------------------------

  // The time now as a timestamp: local fields, microseconds to the millisecond, and the
  // offset from UTC that is in force.
  QDACORE_EXPORT static TCIMDateTime GetLocalTime();

  // Writes to the debugger's output; on Linux to standard error.
  QDACORE_EXPORT static void OutputLogString(std::string text);

  // Writes one event of the source "VXTP" to the system's event log; on Linux to syslog under
  // that ident, after which a host that logs there itself must call openlog again. Errors and
  // warnings keep their kind, all else is information. Where there is no event log it is dropped;
  // never fails.
  QDACORE_EXPORT static void LogSELEvent(const char* text, ILogger::EQDALogSeverity severity,
                                         int eventId);

  // --- Plug-ins ------------------------------------------------------------------------
  //
  //   kind                 file                       found in
  //   namespace provider   NAME.nsp.dll               the root directory
  //   namespace consumer   NAME.nsc.dll               the root directory
  //   plain plug-in        FOLDER/FILE.EXTENSION.dll  folders one level below a directory
  //
  // Modules are found and loaded, never unloaded. What a module's start-up does is all that
  // loading runs; it may use the registry, so loading must not overlap with that.

  // The directory of the running program's file, with no separator at the end. Throws
  // kQDAStatusFileSystemError when the path is not to be had or has 512 characters or more.
  QDACORE_EXPORT static std::string GetQDARootPath();

  // The names (without directory and ending) of the provider and consumer modules in the root
  // directory, in the order of the file system. None is an empty list. Throws
  // kQDAStatusFileSystemError when the directory cannot be searched.
  QDACORE_EXPORT static std::vector<std::string> FindNSPs();
  QDACORE_EXPORT static std::vector<std::string> FindNSCs();

  // The full paths of the files that end in "." + extension + ".dll" in the folders directly
  // below `directory`; without `extension`, ".pi.dll". Folders whose names begin with a dot
  // are passed over. Throws kQDAStatusFileSystemError when `directory` or one of its folders
  // cannot be searched, also when it is missing.
  QDACORE_EXPORT static std::vector<std::string> FindPlugins(std::string directory);
  QDACORE_EXPORT static std::vector<std::string> FindPlugins(std::string directory,
                                                             std::string extension);

  // Loads a module from `path` as it stands. Throws kQDAStatusFileSystemError, with nothing
  // logged, when it does not load.
  QDACORE_EXPORT static void LoadPluginLibrary(std::string path);

  // Loads the provider module of that name, as FindNSPs gives it. Whether it registered
  // anything is not looked at. Throws kQDAStatusFileSystemError, after an error line in the
  // core log, when it does not load.
  QDACORE_EXPORT static void LoadNSPLibrary(std::string name);

  // Loads the consumer module of that name and returns what its factory makes, which may be
  // null; the caller deletes it. Throws, after an error line in the core log,
  //   kQDAStatusFileSystemError  the module does not load
  //   kQDAStatusNotFound         it exports no NAME_CreateINamespaceConsumer (it stays loaded)
  QDACORE_EXPORT static INamespaceConsumer* LoadNSCLibrary(std::string name);

  // The path of a plug-in's description file: up to the first "." + extension + ".dll" of
  // `pluginPath`, which may stand in a folder's name, and then the ending. Text only. Throws
  // kQDAStatusFail when the ending is not there. The registration path has no short form.
  QDACORE_EXPORT static std::string BuildSpecificationPath(std::string pluginPath);
  QDACORE_EXPORT static std::string BuildSpecificationPath(std::string pluginPath,
                                                           std::string extension);
  QDACORE_EXPORT static std::string BuildRegistrationPath(std::string pluginPath,
                                                          std::string extension);

  // --- Paths, files and directories ----------------------------------------------------
  //
  // On Windows paths are what the host takes. On Linux "\" separates as "/" does, but what is
  // there as it stands, up to a "/", is taken so: a name may hold a backslash there. A path with a
  // NUL in it names nothing. Links are followed but where it says otherwise. Nothing is logged.

  // Makes one directory; its parent must be there. Throws
  //   kQDAStatusDirectoryAlreadyExists  something of that name is there, also a file
  //   kQDAStatusAccessDenied            denied, a read-only file system, device not ready
  //   kQDAStatusFileSystemError         all else, a missing parent too
  QDACORE_EXPORT static void CreateDir(std::string path);

  // Whether a directory, or anything else, is there under this name: a directory is no file. A
  // missing one is false. Throws kQDAStatusFileSystemError when the host cannot tell, also when it
  // denies to.
  QDACORE_EXPORT static bool DirExists(std::string path);
  QDACORE_EXPORT static bool FileExists(std::string path);

  // Copies a file's contents and modification time, and on Windows its attributes. A target that
  // is there is replaced; on Linux it keeps its owner and permissions, and a new one has those of
  // the source less the umask. Holes of a sparse file stay holes on Linux. Neither is anything
  // lost when both are the same file (kQDAStatusFileSystemError), nor does half a copy stay after
  // a failure on the way: then no target is left, also when there was one. Throws
  //   kQDAStatusAccessDenied     denied, a read-only file system, device not ready; a directory
  //   kQDAStatusFileSystemError  all else: a missing source too, a full device, pipes and devices
  QDACORE_EXPORT static void FileCopy(std::string source, std::string target);

  // Copies what is in a directory into `target`, which is made when it is missing (its parent must
  // be there): files by FileCopy, directories likewise when `recursive`, otherwise not at all.
  // Entries whose names begin with a dot are passed over. What is in `target` already and has no
  // namesake stays. A failure ends the copy at once: what was copied stays, and the search of
  // each directory that was being read stays open, which is meant.
  //
  // Ends for certain: the target, and a directory that is being copied, is not entered when it
  // turns up below `source`. On Linux it also stays inside `target`: a link to a directory (when
  // `recursive`), and a link to nothing, becomes the same link; a link to a file becomes the
  // file. A link that stands in `target` where a file or link goes is replaced; where a directory
  // goes the copy fails (kQDAStatusFileSystemError). On Windows links and junctions are what they
  // lead to, on both sides, so a link in `target` is written through. An empty path is the root
  // directory.
  //
  // Throws kQDAStatusFileSystemError when `source` or a directory below cannot be searched (then
  // its target has not been made), and what DirExists, CreateDir and FileCopy throw.
  QDACORE_EXPORT static void DirCopy(std::string source, std::string target, bool recursive);

  // The bare names of a directory's entries, in the order of the host, without those that begin
  // with a dot. An empty path is the root directory. Throws kQDAStatusFileSystemError when it
  // cannot be read, or not to its end.
  QDACORE_EXPORT static std::vector<std::string> ListDir(std::string path);

  // In bytes. Throws
  //   kQDAStatusFileNotFound     nothing is there, or a directory
  //   kQDAStatusFileSystemError  the host cannot tell
  QDACORE_EXPORT static unsigned long long GetFileSize(std::string path);

  // The process's current directory, in the host's form. One of more than 260 characters is not
  // detected, which is meant: the text is then empty. Throws kQDAStatusFileSystemError when it is
  // not to be had, as when it has been removed.
  QDACORE_EXPORT static std::string GetCurrentDir();

  // Places `path` under `base` unless it already says where it is. Text only, never fails. In this
  // order: one double quote, or else one backslash, at the end of `path` is dropped; an empty
  // `base` changes nothing more; a rooted path ("\x"), one with a drive and a root ("C:\x"), and
  // one with another drive than that of `base` ("D:x"; case does not count) are returned; the
  // drive of others is dropped; and `base` is put before them, with a backslash between when it
  // does not end in one. On Linux a "/" counts like a backslash but at the end of `path`, and is
  // what is put between when `base` holds neither a backslash nor a drive.
  QDACORE_EXPORT static std::string RelocateRelativePath(std::string base, std::string path);

  // For a program whose caller expands no wildcards: `argv` with each argument that holds a "*"
  // replaced by the paths that match it, in the order of the host, directories and entries with a
  // dot among them; one that matches nothing stays as it is. "*" and "?" count in the last part
  // only, and a "?" alone expands nothing. On Windows matches have what stands up to the last
  // backslash before them, and lack what stands between that and a "/".
  //
  // The array (count in `*newArgc`, no null behind it) and each string in it are the caller's and
  // come from malloc: each is released with free, on Windows that of the C runtime which this
  // library uses. `argv` is left alone. Each search stays open for the life of the process, which
  // is meant; on Linux it holds no descriptor then. Throws std::bad_alloc only, with nothing
  // stored.
  QDACORE_EXPORT static void ExpandCommandLineWildcards(int argc, char** const argv, int* newArgc,
                                                        char*** const newArgv);

  // --- Processes and capture -----------------------------------------------------------
  //
  // SpawnProcess runs a program to its end and gives what it wrote, output and error output as
  // one stream in the order of writing, NUL bytes included. It returns when the child has ended
  // and nobody (a grandchild, say) can write to that stream any more; there is no limit of time.
  // The child's input is a pipe that stays open and empty: a child that reads it waits for ever,
  // and the caller with it.
  //
  // The command line is `program` and, behind a blank each, `arguments`, as they stand: nothing is
  // quoted, so the caller quotes what holds blanks. Windows takes the line as it takes any. On
  // Linux it is taken apart into words, without a shell and without expanding anything:
  //
  //   blanks, tabs   separate words
  //   '...'          its inside, as it stands
  //   "..."          its inside; in it \" is a quote and \\ a backslash, and others stay
  //   \              before a blank, a quote or a backslash: that character, as text
  //
  // and a program whose name holds no separator is looked up on PATH. There a child inherits its
  // three standard handles and nothing else, and begins with no signal blocked.
  //
  // The last argument of each form is accepted and never read.
  //
  // Throws kQDAStatusFail, after one error line in the core log, when a pipe cannot be made or the
  // program cannot be started (a NUL in the line names none); what was opened until then stays
  // open. A program that starts and fails is no failure here.

  // Returns the child's exit code (on Linux 128 + S for a child that the signal S ended; -1 when
  // the host does not tell it, as where SIGCHLD is ignored), with what it wrote in `output`. A
  // console child has no visible window. Both ends of the child's input stay open for the life of
  // the process: two handles a call.
  QDACORE_EXPORT static int SpawnProcess(std::string program, std::vector<std::string> arguments,
                                         std::string& output, int ignored);

  // Returns what the child wrote, which also goes to the core log at debug severity. How the child
  // ended is not to be learnt. Leaves nothing open. The short form has no arguments.
  QDACORE_EXPORT static std::string SpawnProcess(std::string program,
                                                 std::vector<std::string> arguments, int ignored);
  QDACORE_EXPORT static std::string SpawnProcess(std::string program, int ignored);

  // Returns the contents of a file, byte by byte; both separators are accepted in its name. Where
  // reading fails midway, what was read until then. The file stays open for the life of the
  // process: one handle a call.
  //
  // CaptureFile throws kQDAStatusFileNotFound, after an error line in the core log, when the file
  // cannot be opened, for whatever reason (a folder cannot). CaptureFileLoader is for files that
  // need not exist: it then writes two lines at debug severity and returns an empty string.
  // `logSystemText`: also write the system's words for a failed reading, at debug severity.
  QDACORE_EXPORT static std::string CaptureFile(std::string fileName);
  QDACORE_EXPORT static std::string CaptureFileLoader(std::string fileName, bool logSystemText);

  // --- File transfer -------------------------------------------------------------------
  //
  // FTP (RFC 959), always passive, through the host's own client, which is found when it is first
  // needed: WinINet, and libcurl on Linux. A failure is false and, where there is something to
  // say, an error line in the core log; the status exceptions are not used. A carriage return,
  // line feed or NUL in any argument is a failure with nothing sent. Calls block as long as the
  // client does: no time limit is set here. docs/transfer.md has all texts.

  // Sends `localFile` as `remoteFile`, in binary mode. True when the server has taken it. `target`:
  //
  //   [USER[:PASSWORD]@]HOST[:PORT][/PATH]
  //   [USER[:PASSWORD]@]IPV6-ADDRESS[:PORT][/PATH]    bare, or in brackets
  //   any text that holds the vendor's upload server's name (QDACORE_UPLOAD_SERVER of the build)
  //
  // Without USER the login is anonymous. PORT counts only with USER and without an IPv6 address;
  // otherwise it is 21. The first "@" ends the credentials, so PASSWORD cannot hold one. `PATH` is
  // appended to the directory that the login leads to, and the file goes there; when the
  // directory cannot be entered, it goes to where the login leads. A bare IPv6 address that
  // cannot be reached is tried again without its last group, anonymously. The vendor's server is
  // taken as the text stands: no part of it is parsed, the login is anonymous.
  //
  // The debug log gets a line with the password in clear text.
  QDACORE_EXPORT static bool FTPFile(std::string target, std::string localFile,
                                     std::string remoteFile);

  // Fetches `remoteFile` into `localFile`, in text mode, which changes line ends and so spoils
  // anything but text. A local file that is there already is left alone, and the result is false.
  // `target` is [USER:PASSWORD@]HOST; the port is 21. An account that is given in full is NOT
  // used: the login is then anonymous.
  QDACORE_EXPORT static bool FTPFileFromZRV(std::string target, std::string localFile,
                                            std::string remoteFile);

  // Whether a name resolves to an IPv4 address; nothing connects to it. 0, or the error code of
  // the host's resolver (Windows: 11001 and the like; Linux: EAI_NONAME and the like), which is
  // also left as the thread's last socket error (on Linux: errno). `service` is a name such as
  // "ftp", or a port's number; one that is unknown is an error too.
  QDACORE_EXPORT static int DetectHostnameAvailable(std::string hostName, std::string service);

  // --- SMBIOS machine identification ---------------------------------------------------
  //
  // From the firmware's structures (DMTF DSP0134), as <smbios/smbios.h> gives them; each call loads
  // the table anew. Failures are lines in the core log and the result that is named here. Two texts
  // of the firmware let std::out_of_range out, and the table then stays loaded: a BIOS version
  // whose build text has fewer than two characters, also one that cannot be read, and a product
  // name with its first dash at the end. Any number of threads, as far as the logger allows.

  // The BIOS build identifier: the first two characters, as they are, of the build text. That is
  // the BIOS version (type 0, 05h), or what stands in square brackets in it, up to its second dash,
  // or to its only one. "00" when there is no table or no such structure. Looks no further than
  // 100 bytes into the structure's strings.
  QDACORE_EXPORT static std::string GetBiosID();

  // The machine type by the product name (type 1, 05h): the up to four characters that begin two
  // places behind its first dash, or the first four of a name of seven characters without one.
  // Otherwise, and when there is no name, "0000". The last string of a structure is not seen.
  QDACORE_EXPORT static std::string GetMachineType();

  // The machine type that the BIOS build identifier, in lower case, stands for; for one that is
  // not known, or when there is no table or no such structure, what GetMachineType gives.
  QDACORE_EXPORT static std::string GetMachineTypeFromID();

  // --- Host services -------------------------------------------------------------------

  // Whether the caller holds administrative rights: on Windows, belongs to the local
  // administrators; on Linux, is effective user 0. Every failure is false. On Windows each call
  // leaves a token open, and one that fails on its way leaves the thread impersonating itself.
  QDACORE_EXPORT static bool IsAdmin();

  // The value of a variable of the process's own environment, whole; on Windows not the C
  // runtime's copy that getenv reads. Empty when it is not set, is empty or cannot be: then with a
  // debug line in the core log that has the system's error number (203: not set). On Linux no
  // other thread may write the environment meanwhile.
  QDACORE_EXPORT static std::string GetEnvironment(std::string name);

  // Sets a variable of the same environment, also to an empty text. False, with a debug line that
  // has the error number, when the name cannot be one (empty, or with "=" in it), when a NUL stands
  // in either (number 87), or when the system refuses. On Linux no other thread may use the
  // environment meanwhile.
  QDACORE_EXPORT static bool PutEnvironment(std::string name, std::string value);

  // The machine's name: on Windows the NetBIOS name, of 15 characters at the most; on Linux the
  // host name, however long. Throws kQDAStatusFail when it is not to be had.
  QDACORE_EXPORT static std::string GetMachineName();

  // The machine's name too: it does not name the system, and this is meant.
  QDACORE_EXPORT static std::string GetOperatingSystemName();

  // Waits; the unit is milliseconds, in spite of the name. Blocks the calling thread, on Windows
  // for ever with the largest number. Never fails.
  QDACORE_EXPORT static void USleep(unsigned int milliseconds);

  // Whether GetKeyboardChar would return at once with a key. On Linux the keyboard is standard
  // input, past the C runtime's buffer; of a pipe or file each byte is a key.
  QDACORE_EXPORT static bool IsKeyWaiting();

  // Waits for a key and returns it, 0 to 255, without echo and without a line end; Enter is 13,
  // Ctrl+C is 3, and keys without a character give more than one number. -1 when there is no
  // keyboard, or the input that stands for it has ended.
  QDACORE_EXPORT static int GetKeyboardChar();

  // Has the system's command interpreter run the text editor ("notepad"; on Linux $VISUAL, else
  // $EDITOR, else "vi") with `path` behind it, and waits for its end. Nothing is quoted: a blank
  // in the path divides it, and what the interpreter takes for a sign acts as one, so a path must
  // not come from outside. A path with a NUL names nothing, and nothing is started. No result.
  QDACORE_EXPORT static void LaunchTextEditor(std::string path);

  // The same for a command shell: "cmd"; on Linux $SHELL, else "sh".
  QDACORE_EXPORT static void LaunchCommandShell();

  // These three are not there: they throw kQDAStatusNotImplemented, whatever the arguments.
  QDACORE_EXPORT static std::string MountDevice(std::string device);
  QDACORE_EXPORT static void UnmountDevice(std::string device, std::string mountPoint);
  QDACORE_EXPORT static std::vector<std::pair<std::string, std::string> > EnumerateRemovableMedia(
      boost::shared_ptr<ICIMNamespace> ns);

  // Does nothing: `devices` stays as it is.
  QDACORE_EXPORT static void getxBMCVirtualDevices(int kind, std::vector<std::string>& devices,
                                                   bool all);

  // Whether the file docs/oem_qda_preboot_readme.txt is there, looked for from the current
  // directory. Throws kQDAStatusFileSystemError when that cannot be told.
  QDACORE_EXPORT static bool isOEMBuild();

  // Two flags of the process that hosts and plug-ins share; the library reads neither. False at
  // load. Plain stores: threads keep them apart.
  QDACORE_EXPORT static void setLuz(bool value);
  QDACORE_EXPORT static bool getLuz();
  QDACORE_EXPORT static void setQDAParser(bool value);
  QDACORE_EXPORT static bool isQDAParser();

  // --- Text ----------------------------------------------------------------------------
  //
  // For firmware texts. Never fail, and never look outside what they are given.

  // Copies string number `index`, from 1, of the block of NUL-terminated strings at `source`, of
  // `sourceLength` bytes, to `target`. The first string is copied without its NUL, so clear
  // `target` before; all others with it. `target` must have room for that: `sourceLength` bytes
  // always do. False, with `target` untouched, when the block has no such string with its NUL.
  QDACORE_EXPORT static bool getBIDString(char* source, char* target, int sourceLength, int index);

  // Cuts `text` down to what stands in square brackets: everything up to the first "[" goes, then
  // everything from the first "]" that is left. One bracket alone does its part; without brackets
  // the text stays. The name says otherwise, and is settled. Always true.
  QDACORE_EXPORT static bool removeNonAlpaNumeric(std::string& text);

  // Takes a version apart at its second dash, or at its only one: `first` keeps what stands behind
  // it, `second` what stands before it. Give the same text in both: the place is that in `first`,
  // and a `second` that is shorter stays whole. Without a dash both stay. Always true.
  QDACORE_EXPORT static bool breakApartVersion(std::string& first, std::string& second);

  // The strings of a block of `length` bytes. The first one ends at the first `delimiter` that
  // stands before any NUL (or at the first NUL, when that is the delimiter), all others at a NUL. A
  // string whose end lies in the last two bytes of the block, or behind them, is not taken, and
  // neither is any after it. Empty when the first string has no end.
  QDACORE_EXPORT static std::vector<std::string> multiStringTok(char* text,
                                                                unsigned long long length,
                                                                char delimiter);

 private:
  static std::vector<std::string> FindNSServices(std::string kind);

  // Reads `handle` to its end, 4,096 bytes at a time. A read that fails with no bytes is an end;
  // one that fails with some is logged under `name`, and what came before it is returned.
  static std::string GetFileContents(int handle, std::string name, bool logSystemText);

  // One line at kLogDebug in the core log: "TOSSpecific debug output: " and `text`. Without a core
  // logger it is lost.
  static void DebugOut(std::string text);
};

}  // namespace NZRVQDA20

#endif
