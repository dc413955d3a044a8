import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 64, height: 64)

  // Modifiers and Statics

  static let vertical = LinearGradient(
    gradient: .init(colors: [
      .red, .blue.opacity(50)
    ]),
    startPoint: .top, endPoint: .bottom
  )

  static let diagonal = LinearGradient(
    gradient: .init(stops: [
      .init(color: .init(red: 1, green: 0, blue: 0), location: 0),
      .init(color: .init(red: 0, green: 1, blue: 0), location: 0.3),
      .init(color: .init(red: 0, green: 0, blue: 1), location: 1)
    ]),
    startPoint: .init(x: 0.2, y: 0.1), endPoint: .init(x: 0.9, y: 1)
  )

  static let many = LinearGradient(
    gradient: .init(colors: [
      .init(red: 0.9412, green: 0.9725, blue: 1),
      .init(red: 0.9804, green: 0.9216, blue: 0.8431),
      .init(red: 0.498, green: 1, blue: 0.8314),
      .init(red: 0.3922, green: 0.5843, blue: 0.9294),
      .init(red: 0.7216, green: 0.5255, blue: 0.0431)
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let single = LinearGradient(
    gradient: .init(colors: [
      // A gradient w/ just a single stop?
      .white
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let empty = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let glow = RadialGradient(
    gradient: .init(colors: [
      .yellow, .orange, .red
    ]),
    center: .init(x: 0.5, y: 0.5), startRadius: 0, endRadius: 0.5
  )

  // Nested Groups and Shapes

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 64, height: 32)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.vertical)
        Rectangle()
          .stroke(Group1.glow, style: .init())
      }
    }
  }

  struct Circle1: View {

    static let intrinsicSize = CGSize(width: 32, height: 32)
    static let origin        = CGPoint(x: 16, y: 32)

    var body: some View {
      Circle()
        .fill(Group1.diagonal)
    }
  }

  struct Reactangle2: View {

    static let intrinsicSize = CGSize(width: 64, height: 8)
    static let origin        = CGPoint(x: 0, y: 40)

    var body: some View {
      Rectangle()
        .fill(Group1.many)
    }
  }

  struct Reactangle3: View {

    static let intrinsicSize = CGSize(width: 64, height: 8)
    static let origin        = CGPoint(x: 0, y: 50)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.single)
        Rectangle()
          .stroke(Group1.empty, style: .init())
      }
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Reactangle1()
            .frame(width: 64, height: 32, alignment: .topLeading)
          Circle1()
            .frame(width: 32, height: 32, alignment: .topLeading)
            .padding(.leading, 16)
            .padding(.top, 32)
          Reactangle2()
            .frame(width: 64, height: 8, alignment: .topLeading)
            .padding(.top, 40)
          Reactangle3()
            .frame(width: 64, height: 8, alignment: .topLeading)
            .padding(.top, 50)
          Text("Glow")
            .foregroundColor(.clear)
            .background(Group1.glow.mask(Text("Glow")))
            .padding(.leading, 5)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 20, alignment: .bottom)
        }
        .frame(width: 64, height: 64,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 64,
                     y: proxy.size.height / 64)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Reactangle1()
          .frame(width: 64, height: 32, alignment: .topLeading)
        Circle1()
          .frame(width: 32, height: 32, alignment: .topLeading)
          .padding(.leading, 16)
          .padding(.top, 32)
        Reactangle2()
          .frame(width: 64, height: 8, alignment: .topLeading)
          .padding(.top, 40)
        Reactangle3()
          .frame(width: 64, height: 8, alignment: .topLeading)
          .padding(.top, 50)
        Text("Glow")
          .foregroundColor(.clear)
          .background(Group1.glow.mask(Text("Glow")))
          .padding(.leading, 5)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 20, alignment: .bottom)
      }
      .frame(width: 64, height: 64)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : 3 * Group1.intrinsicSize.width,
               height : 3 * Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 64.0x64.0").padding(.bottom)
    }
  }
}
