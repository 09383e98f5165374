// MacService: the upgrade service of the desktop client, stopping and
// starting the per-user client with process signals and the platform's
// bundle functions.
#ifndef NIMBULO_MAC_SERVICE_H
#define NIMBULO_MAC_SERVICE_H

#include "nimbulo-service.h"

class MacService : public Service {
public:
    MacService();

    // The process-wide instance, created on first use, destroyed at exit.
    static MacService* GetInstace();

    // Sends SIGTERM to the client named in R/ui.pid, waits up to five
    // seconds for it to go, then sends SIGKILL. A pid that does not run the
    // client executable is left alone.
    void StopService() override;
    // Stops the client when it is installed, then PrepareUserEnv().
    int HandlePackageUpgrade() override;
    // Starts the per-user client; a failure is logged.
    void PostUpgrade() override;
    void PreUpgrade() override;
    // true when the client executable is missing or the bundle's build
    // number is greater than the installed one.
    bool IsNeedUpgrade() override;

    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
    // A/Contents/MacOS/nimbulo-pelora-ui.
    ustring ClientExecutable() const;
    // Whether the client executable exists (executable or not).
    bool PerUserBinPathExist();
    // Makes the desktop forget the per-user bundle, then opens it. 0 when
    // the open request was accepted, else -1.
    int LaunchPerUserBin();
};

#endif
