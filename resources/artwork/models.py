"""Describes every reference camera and the placeholder: proportions, finish, mount, sensor, cooling and connectors."""

from dataclasses import dataclass, field

ORVELLE, LINTARO, KORDANE = 'azure', 'teal', 'amber'  # Each vendor has one accent colour.


@dataclass
class Model:
    size: tuple  # Width, height and depth of the body in mm.
    mount: tuple  # Kind (see mounts.py), radius and length.
    sensor: tuple = (9, 7)  # Width and height of the sensitive area.
    rear: list = field(default_factory=list)  # Connectors from top to bottom, see connectors.py.
    body: str = 'graphite'
    accent: str = ORVELLE
    ring: str = 'steel'  # Material of the mount.
    tint: str = 'standard'  # Colour of the glass over the sensor, see mounts.py.
    kind: str = 'area'  # Kind of the sensor: area, polar, line or tdi.
    corner: float = 1.5  # Radius of the body's corners or, if `cut` is set, width of the cuts.
    cut: bool = False  # The corners are cut off instead of rounded.
    name: str = ''  # Text on the right side of the body.
    plates: int = 0  # Number of cooling plates across the optical axis.
    ribs: int = 0  # Number of cooling ribs along the optical axis, on the top.
    flanks: int = 0  # Number of cooling ribs along the optical axis, on the right side.
    fan: bool = False
    bare: bool = False  # The camera consists of boards without a housing.


C_MOUNT, CS_MOUNT, S_MOUNT = ('threaded', 13.2, 8), ('threaded', 13.2, 4), ('board lens', 8, 15)
F_MOUNT, M32, M42 = ('bayonet', 24, 8), ('threaded', 16.5, 8), ('threaded', 22, 9)
M58, M72, M95 = ('threaded', 30, 10), ('threaded', 37, 10), ('threaded', 48, 11)

SILVER, NAVY = {'body': 'silver', 'corner': 6}, {'body': 'navy', 'accent': 'silver'}
LINE, BLACK = {'accent': LINTARO, 'kind': 'line'}, {'body': 'black', 'accent': KORDANE, 'tint': 'large'}

MODELS = {
    'camera-placeholder': Model((34, 34, 40), C_MOUNT, (11, 8), body='pale', accent='silver', ring='pale', tint='pale'),

    # Orvelle's series KX. In its housed models, a larger number means a larger sensor.
    'kx': Model((29, 29, 30), C_MOUNT, (8, 6), ['rj45'], name='KX'),
    'kx200': Model((29, 29, 46), C_MOUNT, (10, 7.5), ['rj45', 'power'], name='KX200'),
    'kx200-pro': Model((36, 36, 50), C_MOUNT, (11, 8.5), ['rj45', 'power'], ribs=6, flanks=6),
    'kx400': Model((48, 29, 42), C_MOUNT, (12, 8), ['usb'], name='KX400'),
    'kx400-pro': Model((56, 38, 50), M32, (16, 11), ['usb', 'power'], ribs=9, name='KX400'),
    'kx-mini': Model((24, 24, 15), S_MOUNT, rear=['usb'], name='KX'),
    'kx-board': Model((44, 40, 17), S_MOUNT, bare=True),
    'kx-cooled': Model((54, 54, 58), C_MOUNT, (12, 9), ['rj45', 'm12'], tint='cooled', plates=6, fan=True),

    # Orvelle's series for special light. The ring is violet for ultraviolet, red for infrared, teal for polarisation.
    'borea': Model((40, 40, 34), C_MOUNT, (10, 8), ['rj45'], name='BOREA', **SILVER),
    'borea-uv': Model((40, 40, 42), C_MOUNT, (10, 10), ['rj45', 'power'], accent='violet', ring='violet', tint='uv',
                      name='BOREA', **SILVER),
    'borea-swir': Model((48, 48, 54), C_MOUNT, (10, 8), ['rj45', 'power'], accent='red', ring='red', tint='swir',
                        plates=6, **SILVER),
    'borea-polar': Model((40, 40, 42), C_MOUNT, (13, 10), ['usb'], accent='teal', ring='teal', kind='polar',
                         name='BOREA', **SILVER),

    # High-resolution models with SFP ports.
    'tarn12': Model((50, 50, 46), M32, (16, 12), ['sfp', 'power'], ribs=7, flanks=7, **NAVY),
    'tarn25': Model((58, 58, 56), F_MOUNT, (19, 17), ['sfp', 'power'], tint='large', ribs=8, flanks=8, **NAVY),
    'tarn65': Model((72, 72, 64), M58, (30, 25), ['sfp', 'sfp', 'power'], tint='large', ribs=9, fan=True, **NAVY),
    # A sealed model and a small model, both without an SFP port.
    'tarn-rugged': Model((48, 48, 46), ('lens tube', 20, 34), rear=['m12', 'm12'], corner=9, name='TARN', **NAVY),
    'ilvo': Model((30, 36, 20), CS_MOUNT, (8, 6), ['usb'], 'blue', 'silver', corner=5, name='ILVO'),

    # Line scan models with a wide opening and a narrow sensor.
    'qz10': Model((66, 62, 34), M42, (24, 1.4), ['rj45', 'power'], name='QZ', **LINE),
    'qz20': Model((92, 66, 40), M58, (34, 1.8), ['rj45', 'power'], name='QZ', **SILVER, **LINE),
    'qz40-tdi': Model((118, 84, 56), M72, (44, 9), ['sfp', 'sfp', 'm12'], accent=LINTARO, kind='tdi', ribs=11,
                      flanks=8),
    'stria8k': Model((124, 54, 32), F_MOUNT, (23, 1.6), ['camera link', 'power'], corner=10, cut=True, name='8K',
                     **LINE),

    # Kordane's models, which are black and have large sensors.
    'hx': Model((80, 80, 66), M58, (30, 24), ['camera link', 'power'], plates=6, **BLACK),
    'hxl': Model((112, 112, 74), M95, (50, 41), ['coax'] * 4, corner=22, cut=True, plates=6, **BLACK),
    'hxt': Model((92, 92, 104), M72, (37, 30), ['coax', 'coax', 'm12'], ribs=9, fan=True, **BLACK),
    'halvex-compact': Model((60, 60, 40), F_MOUNT, (22, 17), ['sfp', 'power'], corner=12, cut=True, name='HC', **BLACK),
}
