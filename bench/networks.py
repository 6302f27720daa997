"""Builds machines with network interfaces and simulated GigE Vision cameras, in network namespaces. Needs root."""

import contextlib
import ctypes
import os
import select
import subprocess

from frames import BOUND

CLONE_NEWNET = 0x40000000
libc = ctypes.CDLL(None, use_errno=True)


@contextlib.contextmanager
def inside(process):
    """Moves the calling thread into the network namespace of a process. Programs that it starts are there too."""
    descriptors = [os.open(f"/proc/{name}/ns/net", os.O_RDONLY | os.O_CLOEXEC) for name in ("thread-self", process)]
    try:
        enter(descriptors[1])
        try:
            yield
        finally:
            enter(descriptors[0])
    finally:
        for descriptor in descriptors:
            os.close(descriptor)


def enter(descriptor):
    if libc.setns(descriptor, CLONE_NEWNET) != 0:
        raise OSError(ctypes.get_errno(), "setns")


def end(process):
    process.kill()
    process.wait(BOUND)
    for pipe in process.stdin, process.stdout:
        if pipe:
            pipe.close()


def started_and_ready(*command):
    """Starts a program that ends with this process, and waits for its first line."""
    process = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *command], stdout=subprocess.PIPE)
    is_ready = select.select([process.stdout], [], [], BOUND)[0] and process.stdout.readline()
    assert is_ready, f"{command} does not start"
    return process


class Machine:
    """A machine in a network namespace of its own, which contains lo and no other interface at first. Use this class in
    a with statement, which ends all programs that were started on the machine. The interfaces disappear with them."""

    def __init__(self, camera_program):
        self.camera_program = camera_program

    def __enter__(self):
        self.processes = contextlib.ExitStack()
        self.peers, self.subnets = {}, {}
        try:
            self.holder = self.new_namespace()
            self.ip(self.holder, "link set lo up")
        except BaseException:
            self.processes.close()
            raise
        return self

    def __exit__(self, *_):
        self.processes.close()

    def new_namespace(self):
        """Returns a process that holds a new network namespace."""
        process = started_and_ready("unshare", "--net", "sh", "-c", "echo ready; exec sleep infinity")
        self.processes.callback(end, process)
        return process.pid

    @staticmethod
    def ip(namespace, *commands):
        """Runs commands of ip(8) in the namespace of a process."""
        with inside(namespace):
            subprocess.run(["ip", "-batch", "-"], input="\n".join(commands), text=True, check=True, timeout=BOUND)

    def add_interface(self, name, subnet):
        """Adds a network interface with the address SUBNET.1. At the other end of its cable is a namespace of its own
        with the network interface "wire"."""
        if name not in self.peers:
            self.peers[name] = self.new_namespace()
        self.subnets[name] = subnet
        self.plug_in(name)
        self.ip(self.peers[name], "link set wire up")
        self.set_up(name)

    def plug_in(self, name):
        # Without link-local IPv6 addresses, the system sends nothing by itself.
        self.ip(self.holder, f"link add {name} type veth peer name wire netns {self.peers[name]}",
                f"link set {name} addrgenmode none")
        self.ip(self.peers[name], "link set wire addrgenmode none")

    def set_up(self, name):
        self.ip(self.holder, f"address add {self.subnets[name]}.1/24 broadcast + dev {name}", f"link set {name} up")

    def remove_interface(self, name):
        self.ip(self.holder, f"link delete {name}")

    def start_cameras(self, name, count=1, serial="FAKE", mac="02:0a:0b", options=()):
        """Starts simulated cameras at the other end of an interface. Their addresses begin with SUBNET.2."""
        peer, subnet = self.peers[name], self.subnets[name]
        self.ip(peer, *(f"address replace {subnet}.{2 + index}/24 broadcast + dev wire" for index in range(count)),
                "link set wire up")
        with inside(peer):
            process = started_and_ready(self.camera_program, "--interface", "wire", "--address", f"{subnet}.2",
                                        "--count", str(count), "--serial", serial, "--mac", mac, *map(str, options))
        self.processes.callback(end, process)
        return process

    def start(self, *command, **options):
        """Starts a program on this machine."""
        environment = {name: value for name, value in os.environ.items() if name != "GENICAM_GENTL64_PATH"}
        with inside(self.holder):
            process = subprocess.Popen(command, env=environment, **options)
        self.processes.callback(end, process)
        return process

    def output(self, *command, bound=BOUND):
        """Runs a program on this machine and returns its standard output."""
        process = self.start(*command, stdout=subprocess.PIPE, text=True)
        printed, _ = process.communicate(timeout=bound)
        assert process.returncode == 0, f"{command} failed with status {process.returncode}"
        return printed

    def received_datagrams(self, name):
        """Returns the number of datagrams that the cameras at the other end of an interface have received."""
        with open(f"/proc/{self.peers[name]}/net/snmp", encoding="utf-8") as file:
            names, values = (line.split() for line in file if line.startswith("Udp:"))
        return int(dict(zip(names, values))["InDatagrams"])


def two_interfaces(machine, options=()):
    """Adds the network interfaces card1 with one camera and card2 with two. Returns the processes that
    simulate them."""
    machine.add_interface("card1", "10.77.1")
    machine.add_interface("card2", "10.77.2")
    return start_first(machine, options), machine.start_cameras("card2", 2, "CARD2-", "02:0a:02", options)


def start_first(machine, options=()):
    """Starts the camera of the network interface card1."""
    return machine.start_cameras("card1", 1, "CARD1-", "02:0a:01", options)


def further_interfaces(machine, count):
    """Adds network interfaces without cameras, as containers have them."""
    for index in range(count):
        machine.add_interface(f"further{index}", f"10.78.{index}")
