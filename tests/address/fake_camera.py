"""A GigE Vision camera without images: answers searches, obeys commands for its address, and keeps registers.

usage: fake_camera.py INTERFACE MAC ADDRESS/PREFIX [refuse|deaf|controlled|forgetful|methods=BITS|serial=TEXT]...

refuse      refuses another address
deaf        answers nothing any more after it got another address
controlled  another program has control
forgetful   accepts a lasting address, but does not store it
methods     the methods that are enabled: 1 persistent, 2 DHCP, 4 link-local

The program must run in a network namespace of its own, because it changes the address of the network interface.
"""

import ipaddress
import socket
import struct
import subprocess
import sys

PORT = 3956
METHODS, STORED, STORED_MASK, STORED_GATEWAY, CONTROL = 0x0014, 0x064C, 0x065C, 0x066C, 0x0A00
GOOD, NO_REGISTER, DENIED = 0, 0x8003, 0x8006


def run(*command):
    subprocess.run(command, check=True)


class Camera:
    def __init__(self, interface, mac, address, options):
        self.interface = interface
        self.mac = bytes.fromhex(mac.replace(":", ""))
        self.options = dict(option.partition("=")[::2] for option in options)
        self.registers = {METHODS: int(self.options.get("methods", 6)), STORED: 0, STORED_MASK: 0, STORED_GATEWAY: 0,
                          CONTROL: 2 if "controlled" in self.options else 0}
        self.owner = None
        self.gateway = 0
        run("ip", "link", "set", interface, "address", mac)
        run("ip", "link", "set", interface, "up")
        self.set_address(ipaddress.ip_interface(address))
        self.socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.socket.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        self.socket.setsockopt(socket.SOL_SOCKET, socket.SO_BINDTODEVICE, interface.encode())
        self.socket.bind(("", PORT))

    def set_address(self, address):
        self.address = address
        run("ip", "address", "flush", "dev", self.interface)
        run("ip", "address", "add", str(address), "broadcast", "+", "dev", self.interface)
        run("ip", "route", "replace", "default", "dev", self.interface)

    def serve(self):
        handlers = {0x0002: self.discover, 0x0004: self.force, 0x0080: self.read, 0x0082: self.write}
        while True:
            data, sender = self.socket.recvfrom(2048)
            if len(data) < 8 or data[0] != 0x42:
                continue
            command, size, request = struct.unpack(">HHH", data[2:8])
            if command in handlers and len(data) == 8 + size:
                handlers[command](data[8:], sender, request)

    def answer(self, sender, command, request, payload=b"", status=GOOD, broadcast=False):
        near = ipaddress.ip_address(sender[0]) in self.address.network
        target = sender if near or not broadcast else ("255.255.255.255", sender[1])
        self.socket.sendto(struct.pack(">HHHH", status, command + 1, len(payload), request) + payload, target)

    def discover(self, _, sender, request):
        block = bytearray(248)

        def put(offset, data):
            block[offset:offset + len(data)] = data
        put(0x0A, self.mac)
        put(0x10, struct.pack(">II", 7, self.registers[METHODS]))
        put(0x24, self.address.ip.packed)
        put(0x34, self.address.netmask.packed)
        put(0x44, struct.pack(">I", self.gateway))
        put(0x48, b"Orvelle")
        put(0x68, b"Kx200")
        put(0xD8, self.options.get("serial", "24990001").encode())
        self.answer(sender, 0x0002, request, bytes(block), broadcast=True)

    def force(self, payload, sender, request):
        if payload[2:8] != self.mac:
            return
        if "refuse" in self.options:
            return self.answer(sender, 0x0004, request, status=DENIED, broadcast=True)
        address, mask, self.gateway = (struct.unpack(">I", payload[offset:offset + 4])[0] for offset in (20, 36, 52))
        if address == 0 and self.registers[METHODS] & 1:
            address, mask = self.registers[STORED], self.registers[STORED_MASK]
        elif address == 0:
            address, mask = 0xA9FE0000 + 0x4D00 + self.mac[5], 0xFFFF0000
        self.answer(sender, 0x0004, request, broadcast=True)
        if "deaf" in self.options:
            sys.exit()
        self.set_address(ipaddress.ip_interface((address, bin(mask).count("1"))))

    def read(self, payload, sender, request):
        address = struct.unpack(">I", payload[:4])[0]
        if address not in self.registers:
            return self.answer(sender, 0x0080, request, status=NO_REGISTER)
        self.answer(sender, 0x0080, request, struct.pack(">I", self.registers[address]))

    def write(self, payload, sender, request):
        address, value = struct.unpack(">II", payload[:8])
        is_owner = self.owner == sender or (address == CONTROL and self.registers[CONTROL] == 0)
        status = GOOD if is_owner and address in self.registers else DENIED
        if status == GOOD and (address == CONTROL or "forgetful" not in self.options):
            self.registers[address] = value
        if status == GOOD and address == CONTROL:
            self.owner = sender if value else None
        self.answer(sender, 0x0082, request, struct.pack(">I", 0), status)


Camera(sys.argv[1], sys.argv[2], sys.argv[3], sys.argv[4:]).serve()
