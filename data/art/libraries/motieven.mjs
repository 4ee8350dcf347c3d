// Motifs for frames and cards. Each stands about its own origin, as a rule the middle of its foot; `place` puts it down.
import { colours as c, darker, heart, leaf, lighter, star, times } from './tekenen.mjs';

export const cream = '#fffdf7';
export const gold = '#f0cf7a';
export const goldDark = '#c9973a';
export const red = '#c8402f';
export const orange = '#ee8a2c';
const wood = '#9a6b48';

// Small hands ---------------------------------------------------------------------------------------------------------

export const place = (x, y, inner, size = 1, turn = 0) =>
  `<g transform="translate(${x} ${y}) rotate(${turn}) scale(${size})">${inner}</g>`;
export const mirrored = (x, y, inner, size = 1) => `<g transform="translate(${x} ${y}) scale(${-size} ${size})">${inner}</g>`;
export const shape = (d, fill, opacity = 1) => `<path d="${d}" fill="${fill}"${opacity < 1 ? ` opacity="${opacity}"` : ''}/>`;
export const line = (d, stroke, width = 1.6, opacity = 1) => `<path d="${d}" fill="none" stroke="${stroke}" ` +
  `stroke-width="${width}" stroke-linecap="round" stroke-linejoin="round"${opacity < 1 ? ` opacity="${opacity}"` : ''}/>`;
export const dashed = (d, stroke, width, dashes, opacity = 1) => `<path d="${d}" fill="none" stroke="${stroke}" ` +
  `stroke-width="${width}" stroke-dasharray="${dashes}" stroke-linecap="round" opacity="${opacity}"/>`;
export const dot = (x, y, radius, fill, opacity = 1) =>
  `<circle cx="${x}" cy="${y}" r="${radius}" fill="${fill}"${opacity < 1 ? ` opacity="${opacity}"` : ''}/>`;
export const oval = (x, y, rx, ry, fill, opacity = 1) =>
  `<ellipse cx="${x}" cy="${y}" rx="${rx}" ry="${ry}" fill="${fill}"${opacity < 1 ? ` opacity="${opacity}"` : ''}/>`;
export const block = (x, y, width, height, fill, rx = 0, opacity = 1) => `<rect x="${x}" y="${y}" width="${width}" ` +
  `height="${height}" rx="${rx}" fill="${fill}"${opacity < 1 ? ` opacity="${opacity}"` : ''}/>`;
/** An empty rectangle with a line around it. */
export const ring = (x, y, width, height, rx, stroke, strokeWidth) =>
  `<rect x="${x}" y="${y}" width="${width}" height="${height}" rx="${rx}" fill="none" stroke="${stroke}" ` +
  `stroke-width="${strokeWidth}"/>`;

// Sinterklaas ---------------------------------------------------------------------------------------------------------

export const mitre = () => shape('M-25 -8C-32 -44 -20 -72 2 -90C24 -70 34 -42 29 -6Z', '#8c2419') +
  shape('M-30 0C-36 -38 -24 -68 -2 -88C20 -68 33 -38 30 0Q0 9 -30 0Z', red) +
  shape('M-31 -16Q0 -8 31 -16L30 0Q0 9 -30 0Z', gold) + shape('M-7 -13L-6 -83L-2 -88L3 -83L7 -13Q0 -12 -7 -13Z', gold) +
  shape('M-25 -50H-8V-40H-28ZM9 -50H23L26 -40H9Z', gold) +
  [-18, 0, 18].map((x) => dot(x, -5 + Math.abs(x) * -0.09, 3.2, red)).join('') +
  line('M-2 -88C-24 -68 -36 -38 -30 0', '#fff', 2, 0.25);

export const staff = () => line('M0 0V-118C0 -160 50 -158 48 -126C46 -102 14 -106 18 -128C20 -138 34 -136 32 -126', goldDark, 7) +
  line('M-1 0V-118C-1 -160 49 -158 47 -126C45 -102 14 -106 18 -128C20 -138 34 -136 32 -126', gold, 4) +
  block(-7, -112, 14, 7, goldDark, 3) + block(-6, -100, 12, 5, goldDark, 2.5);

/** A present with a lid and a bow; its foot is the middle of its lower edge. */
export const gift = (width, height, fill, ribbon) => block(-width / 2, -height, width, height, fill, 3) +
  block(width / 4, -height, width / 4, height, darker(fill), 3, 0.25) +
  block(-width / 10, -height, width / 5, height, ribbon) +
  block(-width / 2 - 3, -height - 2, width + 6, height * 0.22 + 2, lighter(fill), 3) +
  block(-width / 10, -height - 2, width / 5, height * 0.22 + 2, lighter(ribbon)) +
  place(0, -height - 2, shape('M0 0C-22 -18 -26 4 0 0C22 -18 26 4 0 0Z', ribbon)) +
  dot(0, -height - 3, 4, darker(ribbon));

export const spiceNut = (x, y, radius) => oval(x, y, radius, radius * 0.82, '#8a5a34') +
  oval(x - radius * 0.08, y - radius * 0.16, radius * 0.88, radius * 0.64, '#b07a48') +
  oval(x - radius * 0.28, y - radius * 0.34, radius * 0.34, radius * 0.2, '#cf9d68');

/** A carrot with its point down, leaning to where it is turned. */
export const carrot = () => [-22, 0, 20].map((turn) => place(0, -34, leaf(0, 0, 26, turn - 90, c.green))).join('') +
  shape('M-9 -34C-12 -40 12 -40 9 -34C8 -14 4 0 0 8C-4 0 -8 -14 -9 -34Z', orange) +
  line('M-6 -26H0M2 -18H6M-4 -10H0', darker(orange), 1.4, 0.6);

/** A child's boot, toe to the right, with a carrot in it. */
export const shoe = () => place(-14, -40, carrot(), 1.05, -14) +
  line('M-4 -44Q0 -62 8 -72M-8 -44Q-8 -62 -2 -80M-26 -44Q-32 -60 -36 -66M-2 -44Q4 -54 14 -58M-22 -44Q-28 -66 -26 -76',
  '#d9b96a', 1.8) +
  shape('M-34 -48Q-19 -43 -2 -48C-2 -34 6 -29 20 -26C36 -22 42 -14 42 -5H-34C-38 -20 -36 -34 -34 -48Z', wood) +
  shape('M-36 -52Q-19 -46 0 -52V-44Q-19 -38 -36 -44Z', darker(wood)) +
  shape('M-36 -7H43Q45 0 40 1H-34Q-38 0 -36 -7Z', '#6d4a33') +
  line('M-4 -38L8 -34M0 -31L12 -28', '#f3e3c2', 2.2) + line('M24 -20Q36 -16 37 -9', '#fff', 2, 0.25);

/** A grey horse that looks to the right, with a saddle cloth. */
export function horse() {
  const [coat, shade, hair] = ['#cfd1ce', '#acb1b1', '#ebeae4'];
  const hoof = (x) => block(x, -6, 12, 6, '#6b6460', 2);
  return shape('M-46 -80C-66 -80 -72 -52 -66 -26C-58 -38 -54 -56 -48 -68Z', hair) +
    shape('M-40 -60C-40 -44 -34 -40 -33 -30L-30 -5H-19L-24 -30C-22 -40 -16 -48 -18 -58Z', shade) + hoof(-30) +
    shape('M20 -54L34 -56C42 -46 48 -42 49 -34L40 -18L31 -22L37 -33C28 -38 20 -44 20 -54Z', shade) +
    shape('M31 -22L40 -18L36 -12L28 -17Z', '#6b6460') +
    shape('M-48 -82C-34 -92 -8 -80 8 -84C20 -90 26 -106 34 -120L39 -132L46 -122C55 -115 63 -102 71 -92C75 -86 71 -79 63 -81' +
      'C56 -82 52 -89 46 -92C45 -80 43 -70 37 -58C30 -44 12 -42 -4 -42C-18 -42 -28 -46 -36 -48C-54 -50 -58 -74 -48 -82Z', coat) +
    shape('M-54 -70C-57 -50 -46 -44 -49 -32C-53 -22 -47 -14 -48 -5H-36C-38 -16 -40 -22 -37 -32C-31 -40 -22 -48 -22 -58Z',
    coat) + hoof(-48) +
    shape('M14 -56L31 -54C30 -38 26 -30 26 -22L27 -5H15L17 -24C15 -34 13 -44 14 -56Z', coat) + hoof(15) +
    [[-40, -68, 5], [-30, -74, 4], [-34, -60, 4], [-46, -60, 3.5],
    [-26, -64, 3]].map(([x, y, r]) => dot(x, y, r, hair, 0.7)).join('') +
    shape('M36 -126C26 -120 22 -104 8 -84C2 -82 6 -72 10 -72C12 -80 18 -80 18 -88' +
      'C24 -88 22 -98 28 -98C32 -100 28 -108 34 -110C38 -114 40 -120 36 -126Z', hair) +
    shape('M-20 -86H8L12 -54Q-4 -48 -22 -54Z', red) + line('M-22 -55Q-4 -49 12 -55', gold, 4) + heart(-5, -66, 0.55, gold) +
    line('M53 -114L46 -93M60 -106L52 -88M46 -93C40 -96 26 -96 12 -86', '#8c2419', 2) + dot(51, -108, 2.4, c.ink) +
    dot(68, -88, 1.3, c.ink, 0.6);
}

/** A steamer that sails to the left; its foot lies on the water. */
export function steamer() {
  const smoke = [[22, -122, 9], [32, -134, 11], [48, -142, 14],
    [68, -144, 11]].map(([x, y, r]) => dot(x, y, r, '#e6dccb')).join('');
  return smoke + block(6, -106, 26, 50, c.terracotta, 2) + block(6, -98, 26, 10, cream) + block(4, -110, 30, 7, '#8c2419', 2) +
    block(24, -106, 8, 50, darker(c.terracotta), 0, 0.35) +
    block(-42, -62, 104, 26, cream, 4) + block(-28, -84, 32, 24, '#f4e6cb', 3) + block(-34, -88, 44, 6, c.blue, 3) +
    block(-46, -65, 112, 6, c.blue, 3) +
    [-30, -10, 10, 30, 48].map((x) => dot(x, -47, 5.5, c.blue) + dot(x - 1, -48, 3, '#cfe3ea')).join('') +
    block(-22, -78, 8, 10, '#cfe3ea', 2) + block(-10, -78, 8, 10, '#cfe3ea', 2) +
    line('M-66 -38V-86M74 -38V-78', wood, 3) + shape('M-66 -86L-92 -80L-66 -72Z', red) +
    shape('M74 -78L94 -73L74 -66Z', c.ochre) +
    shape('M-92 -38H92C92 -18 82 0 74 4H-70C-80 -6 -88 -22 -92 -38Z', '#7c3328') + shape('M-93 -40H93V-32H-92Z', gold) +
    shape('M-76 -10H82L74 6H-68Z', '#5d241d') +
    [-56, -28, 0, 28, 56].map((x) => dot(x, -21, 4.5, gold)).join('');
}

// Birth ---------------------------------------------------------------------------------------------------------------

/** A stork that looks to the left and brings a bundle. */
export function stork(cloth = c.blush) {
  const [white, shade, dark, leg] = ['#fffefa', '#dfe2dd', '#4b4c52', '#d96a4a'];
  return line('M14 -62V-3M14 -3L2 0M14 -3L22 0', leg, 3.6) +
    line('M28 -62L36 -34L22 -2M22 -2L12 1M22 -2L32 1', darker(leg), 3.2) +
    shape('M50 -86C72 -78 84 -66 92 -54C74 -54 56 -58 44 -66Z', dark) +
    shape('M-28 -98C-20 -116 32 -114 66 -72C46 -54 4 -50 -16 -64C-28 -74 -32 -88 -28 -98Z', white) +
    shape('M-20 -68C2 -52 44 -54 66 -72C58 -58 40 -50 20 -50C2 -50 -12 -58 -20 -68Z', shade) +
    line('M-16 -88C-38 -104 -12 -122 -26 -142', white, 15) + dot(-27, -146, 12, white) +
    shape('M-36 -152L-92 -140L-36 -141Z', leg) + line('M-38 -146L-88 -140', darker(leg), 1.2) +
    shape('M-6 -94C20 -104 50 -88 78 -60C52 -56 16 -58 2 -72C-6 -78 -10 -88 -6 -94Z', shade) +
    shape('M34 -86C54 -80 66 -70 78 -60C58 -57 40 -58 26 -62C36 -68 38 -78 34 -86Z', dark) +
    shape('M-4 -94C12 -100 30 -94 42 -84C28 -74 12 -72 2 -76C-6 -80 -8 -90 -4 -94Z', '#f3f3ee') + dot(-30, -148, 2.2, c.ink) +
    place(-82, -141, bundle(cloth));
}

/** A baby in a cloth, hanging from its knot. */
export const bundle = (cloth) => shape('M0 0C-8 -10 -16 -12 -18 -6C-14 0 -6 2 0 2C6 2 14 2 16 -5C14 -12 6 -10 0 0Z',
  darker(cloth)) +
  shape('M0 0C-10 14 -30 22 -28 42C-26 60 26 60 28 42C30 22 10 14 0 0Z', cloth) +
  shape('M2 54C22 54 29 48 28 40C30 24 12 14 3 4C14 22 22 34 2 54Z', darker(cloth), 0.22) +
  dot(-4, 34, 12.5, '#f8dcc4') + line('M-10 35q2.5 2.5 5 0M-1 35q2.5 2.5 5 0M-5 40q2 1.6 4 0', c.ink, 1.3) +
  dot(-12, 39, 2.2, c.terracotta, 0.4) + dot(5, 39, 2.2, c.terracotta, 0.4) +
  line('M-4 22c-4 2 -2 6 1 4', wood, 1.5) + [[17, 34], [14, 46], [-20, 48], [0, 50], [-21, 30]].map(([x, y]) => dot(x, y, 1.8,
  '#fff', 0.8)).join('');

const peg = (x, y) => block(x - 2, y - 5, 4, 12, wood, 1.5);
const pegs = (half) => peg(-half, 0) + peg(half, 0);

/** Baby clothes; they hang from (0, 0). */
export const romper = (fill) =>
  shape('M-17 0Q-9 10 0 10Q9 10 17 0L34 12L27 26L19 21L20 42Q12 46 8 58H-8Q-12 46 -20 42L-19 21L-27 26L-34 12Z', fill) +
  line('M-17 0Q-9 10 0 10Q9 10 17 0', lighter(fill), 3) + shape('M19 21L20 42Q12 46 8 58H2Q14 40 12 14Z', darker(fill), 0.18) +
  heart(0, 32, 0.62, '#fff') + pegs(15);
export const bib = (fill) => shape('M-16 0C-10 14 10 14 16 0C26 6 28 42 0 44C-28 42 -26 6 -16 0Z', fill) +
  line('M-17 8C-22 24 -16 38 0 38C16 38 22 24 17 8', '#fff', 1.6, 0.8) + star(0, 26, 7, '#fff') + pegs(15);
export const sock = (fill) => shape('M-8 0H8V24C16 28 24 30 24 38Q24 44 16 44H-2Q-10 44 -9 34Z', fill) +
  block(-9, -1, 18, 8, lighter(fill), 2) + shape('M14 44Q14 34 22 32Q25 36 24 40Q22 44 14 44Z', lighter(fill)) + peg(0, 0);
export const trousers = (fill) => shape('M-19 0H19L24 50H6L0 24L-6 50H-24Z', fill) + block(-20, -1, 40, 8, lighter(fill), 2) +
  block(-25, 44, 20, 8, lighter(fill), 2) + block(5, 44, 20, 8, lighter(fill), 2) +
  [[-12, 18], [10, 16], [-14, 32], [14, 32], [-1, 14]].map(([x, y]) => dot(x, y, 2, '#fff', 0.75)).join('') + pegs(15);
export const cap = (fill) => shape('M-22 30C-24 -6 24 -6 22 30Z', fill) + block(-25, 26, 50, 11, lighter(fill), 5) +
  dot(0, 1, 7, lighter(fill)) + line('M-9 10L-11 26M9 10L11 26M0 8V26', '#fff', 1.4, 0.5) + peg(0, 0);

// Wedding -------------------------------------------------------------------------------------------------------------

/** Two rings, one through the other. */
export const rings = () => {
  const band = (x, y) => `<circle cx="${x}" cy="${y}" r="17" fill="none" stroke="${goldDark}" stroke-width="5"/>` +
    `<circle cx="${x - 0.6}" cy="${y - 0.8}" r="17" fill="none" stroke="${gold}" stroke-width="3"/>`;
  return band(-11, 0) + band(11, 3) + line('M4.3 -7.3A17 17 0 0 1 5.8 -2', goldDark, 5) +
    line('M3.7 -8.1A17 17 0 0 1 5.2 -2.8', gold, 3) +
    shape('M11 -26L3 -19L11 -10L19 -19Z', '#dcebee') + shape('M3 -19H19L11 -10Z', '#b9d3da') +
    shape('M7 -19H15L11 -10Z', '#cfe2e7');
};

// Christmas and New Year ----------------------------------------------------------------------------------------------

/** A twig of fir along the x axis; needles in two tones. */
export function firTwig(length, fill, thick = 15) {
  const needles = (step, size, lean, shift) => times(Math.floor(length / step), (i) => {
    const x = shift + i * step;
    const reach = size * (0.55 + 0.45 * Math.sin(Math.PI * (0.2 + 0.7 * (1 - x / length))));
    return [-reach, reach].map((y) => `M${x} 0l${(reach * lean).toFixed(1)} ${y.toFixed(1)}`).join('');
  }).join('');
  return line(`${needles(4, thick, 0.95, 2)}M${length - 6} 0h12`, fill, 2.4) +
    line(needles(9, thick * 0.6, 1.5, 5), lighter(fill), 1.3, 0.6) + line(`M0 0H${length}`, wood, 2.2);
}

/** A bauble on a thread of its length, hanging from (0, 0). */
export const bauble = (thread, radius, fill, ornament = '') => line(`M0 0V${thread}`, goldDark, 1.3) +
  block(-4, thread - 1, 8, 7, goldDark, 2) +
  place(0, thread + 5 + radius, dot(0, 0, radius, fill) +
    place(0, 0, shape('M6 -19A20 20 0 0 1 -10 17.3A20 20 0 0 0 20 0A20 20 0 0 0 6 -19Z', darker(fill), 0.3), radius / 20) +
    ornament +
    place(0, 0, line('M-13.2 -4Q-11.6 -11.6 -5.2 -13.2', '#fff', 2.6, 0.65), radius / 20));

export const flame = () => dot(0, -12, 24, '#fbe3a4', 0.35) + dot(0, -12, 15, '#fbe3a4', 0.5) +
  shape('M0 -30C12 -14 9 0 0 0C-9 0 -12 -14 0 -30Z', c.ochre) + shape('M0 -17C6 -8 4 -1 0 -1C-4 -1 -6 -8 0 -17Z', '#fff6d8');
export const candle = (height, fill) => block(-9, -height, 18, height, fill, 2) +
  block(3, -height, 6, height, darker(fill), 2, 0.3) +
  shape(`M-9 ${-height}Q0 ${-height - 5} 9 ${-height}V${-height + 10}q-2.5 5 -5 0q-2 -4 -4 2q-3 6 -6 0q-1 -4 -3 -4Z`,
  lighter(fill), 0.75) + line(`M0 ${-height}V${-height - 6}`, c.ink, 1.6) + place(0, -height - 4, flame());
export const holly = (fill = '#4f7f66') => {
  const blade = 'M0 0C6 -12 10 -6 14 -12C18 -6 24 -12 28 -8C32 -8 36 -4 44 0C36 4 32 8 28 8C24 12 18 6 14 12C10 6 6 12 0 0Z';
  return [-28, 205].map((turn, i) => place(0, 0, shape(blade, i ? darker(fill) : fill) + line('M2 0H36', lighter(fill), 1), 1,
    turn)).join('') +
    [[-6, 3], [6, 4], [0, -6]].map(([x, y]) => dot(x, y, 6, red) + dot(x - 2, y - 2, 1.8, '#fff', 0.7)).join('');
};

/** A rocket's burst: rays in two rings with a spark at every end. */
export function burst(radius, fill, rays = 14) {
  const ray = (i, from, to, turn) => {
    const angle = ((i + turn) * 2 * Math.PI) / rays;
    const [x, y] = [Math.cos(angle), Math.sin(angle)];
    return { d: `M${(x * from).toFixed(1)} ${(y * from).toFixed(1)}L${(x * to).toFixed(1)} ${(y * to).toFixed(1)}`, x: x * to,
      y: y * to };
  };
  const outer = times(rays, (i) => ray(i, radius * 0.45, radius * 0.86, 0));
  const inner = times(rays, (i) => ray(i, radius * 0.2, radius * 0.5, 0.5));
  return line(outer.map((r) => r.d).join(''), fill, 2.2) + line(inner.map((r) => r.d).join(''), lighter(fill), 1.6) +
    dot(0, 0, radius * 0.07, '#fff6d8') +
    outer.map((r) => dot((r.x * 1.16).toFixed(1), (r.y * 1.16).toFixed(1), 2.2, lighter(fill))).join('');
}

/** A flute with bubbles; its foot is at (0, 0). */
export const flute = () => line('M0 -2V-38', '#cfdfe2', 2.6) + oval(0, -1, 13, 3, '#cfdfe2') +
  shape('M-12 -98C-14 -64 -10 -40 0 -38C10 -40 14 -64 12 -98Z', '#e9f1f0', 0.55) +
  shape('M-12.5 -82C-12.5 -58 -9 -42 0 -40C9 -42 12.5 -58 12.5 -82Z', '#f6d489') + oval(0, -82, 12.5, 2.6, '#fdeec2') +
  [[-4, -70], [4, -62], [-2, -54], [5, -74], [1, -46]].map(([x, y]) => dot(x, y, 1.5, '#fff', 0.85)).join('') +
  line('M-8 -92C-9 -70 -8 -58 -5 -50', '#fff', 1.8, 0.6);
export const bottle = () => shape('M-7 -124H7V-96C7 -84 20 -80 20 -62V-4Q20 0 16 0H-16Q-20 0 -20 -4V-62C-20 -80 -7 -84 -7 -96Z',
  '#3f6f55') + shape('M10 -78C18 -72 20 -66 20 -60V-4Q20 0 16 0H8Z', '#2d5340') +
  shape('M-8 -124H8V-100Q0 -94 -8 -100Z', gold) + block(-9, -128, 18, 7, goldDark, 3) + block(-20, -56, 40, 34, '#fdf3da') +
  block(-20, -52, 40, 3, goldDark) + block(-20, -29, 40, 3, goldDark) + star(0, -39, 8, goldDark) +
  line('M-14 -62V-8', '#fff', 2.4, 0.3);

// Easter --------------------------------------------------------------------------------------------------------------

const eggPath = 'M0 -26C13 -26 20 -6 20 6C20 19 11 26 0 26C-11 26 -20 19 -20 6C-20 -6 -13 -26 0 -26Z';
/** Once in every picture with eggs: it keeps their paint within the shell. */
export const eggClip = `<clipPath id="ei"><path d="${eggPath}"/></clipPath>`;
const zigzag = (y, fill) => line(`M-24 ${y}${times(8, (i) => `l6 ${i % 2 ? 6 : -6}`).join('')}`, fill, 2.6);
const paints = [
  (fill) => line('M-24 -4Q0 2 24 -4', fill, 5) + line('M-24 8Q0 14 24 8', '#fff', 3, 0.85) +
    line('M-24 -15Q0 -10 24 -15', '#fff', 2.4, 0.85),
  (fill) => [[-10, -8], [2, -14], [11, -4], [-2, 0], [-13, 7], [8, 9], [-3, 15],
  [14, 16]].map(([x, y], i) => dot(x, y, i % 2 ? 2.6 : 3.6, i % 3 ? '#fff' : fill)).join(''),
  (fill) => zigzag(-6, '#fff') + zigzag(6, fill) + line('M-24 16H24', '#fff', 2),
  (fill) => block(-24, -5, 48, 14, fill) + times(5, (i) => dot(-16 + i * 8, 2, 2.4, '#fff')).join('') +
  line('M-24 -9H24M-24 13H24', '#fff', 1.8),
];
export const egg = (fill, paint, other) => shape(eggPath, fill) +
  `<g clip-path="url(#ei)">${paints[paint % paints.length](other)}` +
  `${shape('M14 -26C16 0 12 18 -12 26H24V-26Z', darker(fill), 0.22)}</g>` + oval(-8, -12, 3, 6, '#fff', 0.5);

/** A rabbit that sits and looks at you; its foot is at (0, 0). */
export function rabbit(fur = '#c39a72') {
  const ear = (turn, x) => place(x, -106, oval(0, -26, 10, 31, fur) + oval(0, -25, 5, 22, c.blush), 1, turn);
  const paw = (x) => oval(x, -5, 17, 8, lighter(fur)) + line(`M${x - 4} -2v-4M${x + 3} -2v-4`, darker(fur), 1.3, 0.6);
  return dot(34, -22, 12, '#f6ead6') + ear(-12, -11) + ear(16, 12) +
    shape('M-36 -6C-44 -44 -24 -76 0 -76C24 -76 44 -44 36 -6Q0 6 -36 -6Z', fur) +
    shape('M10 -74C32 -66 44 -38 36 -6Q20 0 4 0C26 -20 26 -50 10 -74Z', darker(fur), 0.18) + oval(0, -30, 19, 27, '#f6ead6') +
    oval(0, -88, 30, 27, fur) + shape('M8 -114C28 -110 36 -92 26 -76C20 -66 8 -61 -2 -61C22 -70 22 -100 8 -114Z', darker(fur),
    0.15) +
    oval(0, -77, 14, 11, '#f6ead6') + dot(-12, -92, 3.4, c.ink) + dot(12, -92, 3.4, c.ink) + dot(-13, -93.2, 1.1, '#fff') +
    dot(11, -93.2, 1.1, '#fff') + shape('M-4.5 -84H4.5L0 -79Z', c.terracotta) +
    line('M0 -79V-76M0 -76Q-4 -72 -7 -75M0 -76Q4 -72 7 -75', c.ink, 1.4) + dot(-20, -82, 4.5, c.terracotta, 0.3) +
    dot(20, -82, 4.5, c.terracotta, 0.3) + paw(-22) + paw(22) +
    oval(-9, -40, 6.5, 11, fur) + oval(9, -40, 6.5, 11, fur);
}

/** A leaf from the ground, drawn for a plant of a hundred pixels. */
const blade = (height, d, fill) => `<g transform="scale(1 ${height / 100})">${shape(d, fill)}</g>`;

/** A daffodil on a bent stem of its height. */
export function daffodil(height, turn = 0) {
  const petals = times(6, (i) => place(0, 0, shape('M0 0C-10 -8 -8 -19 0 -24C8 -19 10 -8 0 0Z', i % 2 ? '#f8d66d' : '#fbe08a'),
    1, i * 60)).join('');
  const frill = times(9, (i) => dot((7 * Math.cos(i * 0.698)).toFixed(1), (7 * Math.sin(i * 0.698)).toFixed(1), 3,
    orange)).join('');
  return blade(height, 'M-2 0C-18 -30 -20 -60 -14 -86C-8 -60 -4 -30 3 0Z', '#6f9a63') +
    blade(height, 'M-1 0C10 -24 18 -40 20 -66C10 -50 4 -30 5 0Z', '#86ad72') +
    line(`M0 0Q4 ${-height * 0.5} 0 ${-height}`, '#5f8a58', 3) +
    place(0, -height, petals + frill + dot(0, 0, 7.5, orange) + dot(0, 0, 4.6, '#c96a1c'), 1, turn);
}

/** Grass from left to right, so many pixels `high`; the roll makes every tuft another. */
export function grass(from, to, y, high, fill, roll) {
  const tuft = () => {
    const [tip, lean] = [high * (0.5 + roll() * 0.5), roll() * 8 - 4];
    const [rise, fall] = [[2, -tip * 0.6, 4 + lean, -tip], [2 - lean * 0.5, tip * 0.5, 5 - lean, tip]];
    return [rise, fall].map((curve) => `q${curve.map((v) => v.toFixed(1)).join(' ')}`).join('');
  };
  return shape(`M${from} ${y + 40}V${y}${times(Math.ceil((to - from) / 9), tuft).join('')}V${y + 40}Z`, fill);
}

// King's day ----------------------------------------------------------------------------------------------------------

/** A tulip of its height. */
export const tulip = (height, fill) => blade(height, 'M0 0C-22 -20 -24 -50 -20 -68C-10 -50 -2 -30 2 0Z', c.green) +
  blade(height, 'M0 0C14 -10 20 -34 18 -54C8 -40 2 -20 -2 0Z', c.sage) +
  line(`M0 0V${-height}`, c.green, 3.4) + place(0, -height,
  shape('M-15 -22C-8 -30 8 -30 15 -22C18 -8 12 6 0 6C-12 6 -18 -8 -15 -22Z', fill) +
  shape('M-15 -22C-8 -30 8 -30 15 -22C18 -8 12 6 0 6C-12 6 -18 -8 -15 -22Z', darker(fill), 0.5) +
    shape('M-17 -28C-8 -20 -2 -6 0 6C-14 6 -20 -10 -17 -28Z', fill) +
    shape('M17 -28C8 -20 2 -6 0 6C14 6 20 -10 17 -28Z', fill) +
    shape('M0 -31C10 -20 10 -2 0 6C-10 -2 -10 -20 0 -31Z', lighter(fill)));

export const crown = () => shape('M-38 -8L-46 -46L-22 -26L0 -56L22 -26L46 -46L38 -8Z', c.ochre) +
  shape('M-38 -8L-46 -46L-22 -26L-28 -8ZM-10 -8L0 -56L-22 -26L-16 -8Z', gold) + shape('M46 -46L38 -8H26L22 -26Z', goldDark, 0.6) +
  block(-40, -12, 80, 14, goldDark, 4) + block(-40, -13, 80, 5, gold, 2.5) +
  [-24, 0, 24].map((x, i) => dot(x, -4, 4, i === 1 ? c.blue : red)).join('') +
  [[-46, -49], [0, -60], [46, -49]].map(([x, y]) => dot(x, y, 5.5, gold) + dot(x - 1.5, y - 1.5, 1.8, '#fff', 0.7)).join('') +
  heart(0, -26, 0.6, orange);

/** A custard slice with orange icing and a paper flag. */
export const custardSlice = () => line('M4 -46V-92', wood, 2) + block(4, -92, 30, 7, red) + block(4, -85, 30, 7, '#fff') +
  block(4, -78, 30, 7, '#4a78a8') +
  shape('M-48 -46L-34 -58H56L46 -46Z', lighter(orange)) + block(-48, -48, 94, 11, orange, 3) +
  shape('M46 -46L56 -58V-48L46 -37Z', darker(orange)) +
  block(-47, -37, 92, 8, '#c98d4e', 2) + block(-45, -30, 88, 22, '#fbe7b0', 3) +
  line('M-38 -22H-20M-8 -18H14M26 -23H36', '#efd28a', 2) + block(-47, -9, 92, 9, '#c98d4e', 2) +
  shape('M45 -37L55 -47V-8L45 0Z', '#d9b878') + shape('M43 -30L54 -40V-17L43 -8Z', '#f0d493') +
  line('M-40 -33H-28M-6 -33H10M-34 -4H-12M12 -4H34', '#a87038', 1.4);

// Moving house --------------------------------------------------------------------------------------------------------

const gables = {
  stairs: (w, fill, trim) => times(4, (i) => block((i * w) / 8, -8 * (i + 1) - 1, w - (i * w) / 4, 10, fill)).join('') +
    block(w * 0.4, -44, w * 0.2, 13, fill, 2),
  neck: (w, fill, trim) =>
  shape(`M0 1C${w * 0.16} 0 ${w * 0.26} -8 ${w * 0.26} -30H${w * 0.74}C${w * 0.74} -8 ${w * 0.84} 0 ${w} 1Z`, fill) +
  shape(`M${w * 0.22} -30Q${w / 2} -48 ${w * 0.78} -30Z`, trim),
  bell: (w, fill, trim) => shape(`M0 1C${w * 0.22} -2 ${w * 0.16} -36 ${w / 2} -40C${w * 0.84} -36 ${w * 0.78} -2 ${w} 1Z`,
  fill) + line(`M0 0C${w * 0.22} -3 ${w * 0.16} -36 ${w / 2} -40C${w * 0.84} -36 ${w * 0.78} -3 ${w} 0`, trim, 3),
  spout: (w, fill, trim) => shape(`M0 1L${w * 0.38} -34V-42H${w * 0.62}V-34L${w} 1Z`, fill) +
  line(`M1 0L${w * 0.38} -34V-42H${w * 0.62}V-34L${w - 1} 0`, trim, 2.6),
  cornice: (w, fill, trim) => block(-3, -8, w + 6, 9, trim, 2) + block(0, -2, w, 3, fill),
};

/** A canal house on the ground at (0, 0), left corner; `floors` rows of windows over a door. */
export function canalHouse(width, floors, gable, fill, door = c.green) {
  const [height, trim] = [floors * 30 + 38, '#fdf3df'];
  const columns = width > 62 ? 3 : 2;
  const gap = width / columns;
  const pane = (x, y, w, h) => block(x - w / 2 - 1.5, y - 1.5, w + 3, h + 3, trim, 1) + block(x - w / 2, y, w, h, '#8fb4bf') +
    shape(`M${x - w / 2} ${y}H${x + w / 2}L${x - w / 2} ${y + h}Z`, '#b4d0d6') +
    line(`M${x} ${y}V${y + h}M${x - w / 2} ${y + h * 0.4}H${x + w / 2}`, trim, 1.3);
  const rows = times(floors, (row) => times(columns, (i) =>
    pane(gap * (i + 0.5), -height + 10 + row * 30, Math.min(11, gap * 0.56), 18)).join('')).join('');
  const ground = block(gap * 0.5 - 8, -32, 16, 32, trim, 2) + block(gap * 0.5 - 6, -24, 12, 24, door, 1) +
    block(gap * 0.5 - 6, -30, 12, 5, '#b4d0d6') + dot(gap * 0.5 + 3.5, -12, 1.2, gold) +
    times(columns - 1, (i) => pane(gap * (i + 1.5), -29, 12, 20)).join('');
  return block(0, -height, width, height, fill) + block(width - 6, -height, 6, height, darker(fill), 0, 0.18) +
    place(0, -height, gables[gable](width, fill, trim)) +
    (gable === 'cornice' ? '' : block(width / 2 - 4, -height - 24, 8, 12, '#b4d0d6', 4)) + rows + ground +
    block(0, -3, width, 3, darker(fill), 0, 0.4);
}

/** A removal box of its size, foot at the middle of its lower edge. */
export const removalBox = (width, height, mark = '') => block(-width / 2, -height, width, height, '#cda26c', 2) +
  block(width / 2 - width * 0.22, -height, width * 0.22, height, '#a87c4a', 2, 0.35) +
  block(-width / 2, -height, width, height * 0.16, '#dcb884', 2) + block(-5, -height, 10, height * 0.44, '#efe0bd') +
  place(-width * 0.22, -height * 0.34, mark);

/** A key on its ring, hanging from (0, 0). */
export const key = () => line('M0 0V14', c.ink, 1.4, 0.7) +
  `<circle cx="0" cy="24" r="10" fill="none" stroke="${goldDark}" stroke-width="2.4"/>` +
  '<path d="M0 30C-16 30 -20 46 -12 56C-8 61 -5 62 -4 66V112H4V66C5 62 8 61 12 56C20 46 16 30 0 30ZM0 40C7 40 9 50 0 56' +
  `C-9 50 -7 40 0 40Z" fill="${c.ochre}" fill-rule="evenodd"/>` +
  shape('M4 90H16V98H10V101H16V110H4Z', c.ochre) + shape('M1 66V112H4V66C5 62 8 61 12 56C17 50 17 42 13 36C15 48 6 58 1 66Z',
  goldDark, 0.6);

/** A cargo bicycle that rides to the left, with removal boxes. */
export function cargoBike() {
  const wheel = (x, r) => `<circle cx="${x}" cy="${-r}" r="${r}" fill="none" stroke="${c.ink}" stroke-width="3.4"/>` +
    line(times(4, (i) => {
    const [dx, dy] = [r * Math.cos((i * Math.PI) / 4), r * Math.sin((i * Math.PI) / 4)].map((v) => v.toFixed(1));
    return `M${x - dx} ${-r - dy}L${x + Number(dx)} ${-r + Number(dy)}`;
  }).join(''), c.ink, 0.8, 0.6) + dot(x, -r, 3, c.ink);
  return place(-26, -42, removalBox(34, 26, heart(0, 2, 0.36, c.terracotta))) + place(4, -42, removalBox(24, 19)) +
    place(-20, -68, removalBox(26, 17)) +
    wheel(-58, 13) + wheel(58, 17) + line('M-58 -13L-14 -12H22L58 -17L40 -50M22 -12L40 -50M40 -44L22 -12', c.terracotta, 3.6) +
    shape('M-54 -48H26L18 -16H-44Z', c.blue) + shape('M-56 -50H28V-44H-56Z', lighter(c.blue)) +
    line('M38 -54L36 -62M30 -62L40 -64', c.ink, 3) + line('M48 -32L50 -46M43 -47H57', c.ink, 3.6);
}

// Tea and flowers -----------------------------------------------------------------------------------------------------

export const steam = () => line('M-8 0C-14 -8 -2 -14 -8 -24M4 -2C-2 -10 10 -18 4 -30', '#b9a99c', 2, 0.55);
export const cup = (fill) => oval(0, -2, 38, 6, darker(fill)) + oval(0, -4, 38, 6, lighter(fill)) +
  line('M22 -32C40 -36 38 -10 18 -12', fill, 5) + shape('M-26 -38H26C26 -16 18 -4 8 -4H-8C-18 -4 -26 -16 -26 -38Z', fill) +
  shape('M10 -38H26C26 -16 18 -4 8 -4H0C10 -12 12 -26 10 -38Z', darker(fill), 0.2) +
  oval(0, -38, 26, 5, lighter(fill)) + oval(0, -37.5, 22, 3.6, '#b9743f') + heart(-4, -16, 0.5, '#fff');

// School --------------------------------------------------------------------------------------------------------------

/** A pencil along the x axis, its point at (length, 0). */
export const pencil = (length, fill) => block(0, -7, length - 20, 14, fill) +
  block(0, 2, length - 20, 5, darker(fill), 0, 0.5) + block(0, -7, length - 20, 4, lighter(fill)) +
  shape(`M${length - 20} -7L${length} 0L${length - 20} 7Z`, '#f0d3a2') +
  shape(`M${length - 7} -2.5L${length} 0L${length - 7} 2.5Z`, darker(fill)) +
  block(-6, -7, 8, 14, '#c9ccc8') + line('M-3 -7V7M0 -7V7', '#9a9e9b', 1) + shape('M-6 -7H-12Q-18 0 -12 7H-6Z', '#e89a92');
export const apple = () => line('M0 -46C0 -54 4 -58 8 -60', wood, 3) + leaf(2, -50, 24, -24, c.green) +
  shape('M0 -43C-8 -51 -32 -49 -32 -25C-32 -7 -18 2 -8 1Q0 -1 8 1C18 2 32 -7 32 -25C32 -49 8 -51 0 -43Z', red) +
  shape('M20 -46C32 -42 34 -28 31 -18C27 -4 16 2 8 1Q4 0 0 0C20 -6 28 -26 20 -46Z', '#8c2419', 0.4) +
  line('M-23 -32C-21 -38 -16 -41 -12 -41', '#fff', 4, 0.55);

/** A school bag with a flap; its foot is at (0, 0). */
export const schoolBag = (fill) => line('M-14 -92C-14 -110 14 -110 14 -92', darker(fill), 6) +
  block(-52, -46, 18, 42, darker(fill), 8) + block(34, -46, 18, 42, darker(fill), 8) +
  shape('M-42 -72C-42 -100 42 -100 42 -72V-8Q42 0 34 0H-34Q-42 0 -42 -8Z', fill) +
  shape('M22 -92C38 -88 42 -80 42 -72V-8Q42 0 34 0H18Q30 -40 22 -92Z', darker(fill), 0.2) +
  block(-30, -36, 60, 30, lighter(fill), 6) + line('M-24 -28H24', darker(fill), 1.6, 0.6) + block(-3, -31, 6, 9, c.ochre, 2) +
  shape('M-44 -72C-44 -104 44 -104 44 -72V-58Q22 -46 0 -46T-44 -58Z', darker(fill)) + block(-24, -62, 8, 24, c.ochre, 2) +
  block(16, -62, 8, 24, c.ochre, 2) + star(0, -72, 12, gold);

// Space ---------------------------------------------------------------------------------------------------------------

/** A rocket that flies upward, with a bear at its window. */
export const rocket = () => shape('M-9 44C-12 62 -4 66 0 82C4 66 12 62 9 44Z', c.ochre) +
  shape('M-4.5 46C-6 56 -2 60 0 68C2 60 6 56 4.5 46Z', '#fff3cf') +
  shape('M-18 12C-36 22 -36 36 -34 50L-12 38ZM18 12C36 22 36 36 34 50L12 38Z', c.terracotta) +
  shape('M0 -62C24 -42 26 6 15 42H-15C-26 6 -24 -42 0 -62Z', '#fbf3e3') +
  shape('M6 -56C24 -38 26 6 15 42H2C16 6 18 -30 6 -56Z', '#dccdb6') +
  shape('M0 -62C9 -54 15 -44 18 -32H-18C-15 -44 -9 -54 0 -62Z', c.terracotta) + block(-14, 38, 28, 8, darker(c.terracotta), 3) +
  dot(0, -8, 15.5, c.ochre) + dot(0, -8, 12, '#8fc1d1') + dot(-6.5, -13, 3.6, '#a97545') + dot(6.5, -13, 3.6, '#a97545') +
  dot(0, -6, 8.6, '#b98552') + oval(0, -3.5, 4, 3, '#f0d9b5') + dot(-3.2, -8, 1.2, c.ink) + dot(3.2, -8, 1.2, c.ink) +
  dot(0, -4.5, 1.3, c.ink) + line('M-19 26Q0 32 19 26', c.blue, 4);
export const planet = (radius, fill, around = '') => place(0, 0, dot(0, 0, 20, fill) +
  shape('M6 -19.1A20 20 0 0 1 -10 17.3A22 22 0 0 0 6 -19.1Z', darker(fill), 0.35) +
  [[-8, -6, 4], [0, 6, 2.6], [-1, -12, 2]].map(([x, y, r]) => dot(x, y, r, lighter(fill), 0.7)).join('') +
  (around && place(0, 0, line('M-18.4 -2.4C-44 6 -24 10 0 8.4C24 6.8 44 -4 18.8 -4', around, 3.2), 1, -14)), radius / 20);

/** A saucer with a passenger. */
export const saucer = () => shape('M-20 -8C-20 -38 20 -38 20 -8Z', '#cfe3ea', 0.85) +
  shape('M-9 -6C-14 -24 -8 -28 0 -28C8 -28 14 -24 9 -6Z', c.sage) + dot(-4, -20, 2.8, '#fff') + dot(4, -20, 2.8, '#fff') +
  dot(-3.5, -19.6, 1.4, c.ink) + dot(4.5, -19.6, 1.4, c.ink) + line('M-4 -13Q0 -10 4 -13', c.ink, 1.3) +
  line('M-5 -28L-8 -36M5 -28L8 -36', c.green, 1.4) + dot(-8, -36, 2, c.sage) + dot(8, -36, 2, c.sage) +
  shape('M-44 -2C-30 -14 30 -14 44 -2C30 10 -30 10 -44 -2Z', c.plum) +
  shape('M-44 -2C-30 10 30 10 44 -2C30 4 -30 4 -44 -2Z', darker(c.plum)) +
  [-26, -9, 9, 26].map((x) => dot(x, -3 + Math.abs(x) * -0.02, 3, gold)).join('') +
  line('M-13 -16C-12 -24 -8 -28 -4 -30', '#fff', 2, 0.7);

// Birds ---------------------------------------------------------------------------------------------------------------

/** A small bird that sits and looks to the left. */
export const bird = (fill, breast) => shape('M18 -12L46 2L40 8L12 0Z', darker(fill)) +
  shape('M-24 -22C-22 -36 -4 -38 2 -26C16 -26 26 -14 24 -4C18 6 -8 8 -16 -4C-20 -10 -20 -14 -24 -22Z', fill) +
  shape('M-22 -18C-16 -20 -6 -12 -2 4C-10 4 -16 0 -18 -6C-20 -10 -21 -14 -22 -18Z', breast) +
  shape('M0 -20C14 -22 28 -8 32 2C18 4 4 0 0 -10Z', darker(fill)) + shape('M-23 -26L-32 -22L-22 -20Z', '#c9a25c') +
  dot(-14, -27, 1.9, c.ink) + line('M-2 4V10M6 4V10', '#8a7a66', 1.6);
export const flyingBird = (size, fill) => place(0, 0,
  shape('M0 0C-6 -9 -16 -12 -26 -8C-18 -8 -10 -3 -6 4C-2 8 3 8 6 4C10 -3 18 -10 26 -12C16 -14 6 -9 0 0Z', fill), size);

// Green and sky -------------------------------------------------------------------------------------------------------

/** A stem of round leaves along a quadratic curve, smaller toward its end. */
export function eucalyptus([[x0, y0], [x1, y1], [x2, y2]], count, size, fill) {
  const point = (t) => [[x0, x1, x2], [y0, y1, y2]].map(([a, b, d]) => (1 - t) * (1 - t) * a + 2 * t * (1 - t) * b + t * t * d);
  const leaves = times(count, (i) => {
    const t = 0.06 + (0.92 * i) / (count - 1);
    const [[x, y], [nx, ny]] = [point(t), point(t + 0.02)];
    const angle = (Math.atan2(ny - y, nx - x) * 180) / Math.PI + (i === count - 1 ? 0 : i % 2 ? 62 : -62);
    const reach = size * (1.1 - 0.55 * t);
    const tone = i % 3 ? fill : lighter(fill);
    return place(x.toFixed(1), y.toFixed(1), oval(reach * 0.62, 0, reach * 0.56, reach * 0.42, tone) +
      line(`M0 0H${(reach * 0.9).toFixed(1)}`, darker(fill), 0.8, 0.4), 1, angle.toFixed(1));
  });
  return line(`M${x0} ${y0}Q${x1} ${y1} ${x2} ${y2}`, darker(fill), 1.6) + leaves.join('');
}

/** A rose seen from above. */
export const rose = (x, y, radius, fill) => place(x, y,
  times(6, (i) => place(0, 0, oval(10, 0, 11.2, 10, fill), 1, i * 60)).join('') +
  times(5, (i) => place(0, 0, oval(6, 0, 8.4, 7.2, i % 2 ? lighter(fill) : darker(fill), i % 2 ? 0.8 : 0.12), 1, i * 72 +
  20)).join('') +
  dot(0, 0, 8.4, lighter(fill)) + line('M6 0A6 6 0 1 1 -2 -5.6M2 0.8A2.6 2.6 0 1 1 0 -2.4', darker(fill), 1.3, 0.5) +
  line('M-12 8A14.4 14.4 0 0 0 10 10.4M14 -6A15.2 15.2 0 0 0 -4 -14.8', darker(fill), 1.2, 0.4), radius / 20);

export const cloud = (x, y, size, fill = '#fff', opacity = 0.9) =>
  `<g transform="translate(${x} ${y}) scale(${size})" fill="${fill}" opacity="${opacity}">` +
  '<path d="M-50 10C-60 10 -62 -6 -46 -8C-46 -24 -22 -28 -14 -18C-6 -34 24 -32 26 -12C42 -18 56 -8 52 4Q50 10 44 10Z"/></g>';

/** The dark outline of a row of gables on the ground at `y`; `lit` is the colour of the windows that are lit. */
export function skyline(from, to, y, size, fill, lit = '') {
  const [widths, heights] = [[30, 36, 28, 40, 33], [46, 62, 40, 54, 68, 50, 44]];
  const step = (w) => `v${-w * 0.14}h${w / 8}`;
  const tops = [
    (w) => `l${w * 0.4} ${-w * 0.44}v${-w * 0.12}h${w * 0.2}v${w * 0.12}l${w * 0.4} ${w * 0.44}`,
    (w) => `${step(w).repeat(3)}v${-w * 0.14}h${w / 4}v${w * 0.14}${`h${w / 8}v${w * 0.14}`.repeat(3)}`,
    (w) => `c${w * 0.24} 0 ${w * 0.2} ${-w * 0.5} ${w * 0.34} ${-w * 0.5}q${w * 0.16} ${-w * 0.16} ${w * 0.32} 0` +
      `c${w * 0.14} 0 ${w * 0.1} ${w * 0.5} ${w * 0.34} ${w * 0.5}`,
  ];
  const houses = [];
  for (let [x, i] = [from, 0]; x < to; i++) {
    const [w, h] = [widths[i % 5] * size, heights[i % 7] * size];
    houses.push(shape(`M${x} ${y}V${y - h}${tops[i % 3](w)}V${y}Z`, fill));
    houses.push(lit && [0.22, 0.6].map((t, k) => (i + k) % 3 ? block(x + w * t, y - h + 6 + k * 13, 6, 8, lit, 1) : '').join(''));
    x += w;
  }
  return houses.join('');
}
