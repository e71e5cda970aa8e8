// What every window may use. main.cpp makes each of these once and hands them down.
#pragma once

namespace quenloft {

class Clipboard;
class Desktop;
class Dialogs;
class Engine;
class EngineHost;
class FileSystem;
class Printer;
class ProfileFile;

struct ServiceSet {
    Engine& engine;
    EngineHost& host;
    FileSystem& files;
    ProfileFile& profile;
    Dialogs& dialogs;
    Clipboard& clipboard;
    Printer& printer;
    Desktop& desktop;
};

}  // namespace quenloft
