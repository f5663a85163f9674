"""A program with one of its calls failing, and what came of it."""
import dataclasses
import errno
import os
import pathlib
import re
import signal
import struct
import subprocess

# The error that a call of each family fails with. In a process of its own each has to be survived.
FAMILIES = {"open": errno.EMFILE, "write": errno.ENOSPC, "fsync": errno.EIO, "rename": errno.EIO,
            "mkdir": errno.ENOSPC, "mmap": errno.ENOMEM, "fork": errno.EAGAIN, "pipe": errno.EMFILE,
            "truncate": errno.ENOSPC, "new": errno.ENOMEM}
RECORD_SIZE = 4096
HEAD = struct.Struct("=QQ")


@dataclasses.dataclass(frozen=True)
class Fault:
    family: str
    program: str  # whose calls: the name of its file
    number: int   # which of them, from 1; 0 for none
    forever: bool = False

    def environment(self, library, record):
        return {"LD_PRELOAD": str(library), "VMR_FAULT_PROGRAM": self.program, "VMR_FAULT_FAMILY": self.family,
                "VMR_FAULT_NUMBER": str(self.number), "VMR_FAULT_ERROR": str(FAMILIES[self.family]),
                "VMR_FAULT_FOREVER": str(int(self.forever)), "VMR_FAULT_COUNT": str(record)}


@dataclasses.dataclass
class End:
    status: int | None  # None when it was ended because it never did so itself
    said: str
    calls: int    # of the family by that program
    failed: int   # of them
    where: list   # the callers of the first that failed: (object, offset)


def run_with(fault, command, folder, environment, library, record, patience):
    """Runs the command in the folder, with the fault. `record` is a file to count in."""
    record = pathlib.Path(record)
    record.write_bytes(bytes(RECORD_SIZE))
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               env=environment | fault.environment(library, record), cwd=folder,
                               start_new_session=True)
    status = None
    try:
        said, _ = process.communicate(timeout=patience)
        status = process.returncode
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        said, _ = process.communicate()
    data = record.read_bytes()
    calls, failed = HEAD.unpack_from(data)
    where = re.findall(r"^(.*)\+(0x[0-9a-f]+)$", data[HEAD.size:].split(b"\0")[0].decode(errors="replace"), re.M)
    return End(status, said.decode("utf-8", "replace"), calls, failed, where)
